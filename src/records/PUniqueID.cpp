#include "records/PUniqueID.h"

#include <algorithm>
#include <cstring>

namespace {

// The protocol (or code set) word in front of a name.
constexpr int kNameOffset = 4;
constexpr int kCodeSetNameOffset = 8;
// Names are stored with at most this many bytes, whatever length is claimed.
constexpr int kMaxNameCopy = 256;

int clampedLength(int length, int limit)
{
    return std::clamp(length, 0, limit);
}

bool isValidVpGroup(int vpg)
{
    return vpg >= PBase::VPGROUP_1 && vpg <= PBase::VPGROUP_4;
}

bool isKnownCodeSet(int codeSet)
{
    return codeSet == PBase::WWULN_CODE_SET_BINARY || codeSet == PBase::WWULN_CODE_SET_TEXT;
}

const char kSaveStringDigits[] = "0123456789ABCDEF";

} // namespace

// ---- PUniqueID --------------------------------------------------------------

PUniqueID::PUniqueID() : PUniqueID(ID_TYPE_NONE) {}

PUniqueID::PUniqueID(ID_TYPE type) : idType(type), dataLength(0)
{
    init();
}

PUniqueID::PUniqueID(const PUniqueID& other) : PUniqueID(ID_TYPE_NONE)
{
    PUniqueID::operator=(other);
}

PUniqueID& PUniqueID::operator=(const PUniqueID& other)
{
    if (this == &other) {
        return *this;
    }
    init();
    idType = other.idType;
    dataLength = other.dataLength;
    PBase::fastMemcpy(data, sizeof data, other.data, sizeof data);
    return *this;
}

bool PUniqueID::operator==(const PUniqueID& other) const
{
    if (idType != other.idType || dataLength != other.dataLength) {
        return false;
    }
    return PBase::fastIsEqualMemcmp(data, sizeof data, other.data, usedLength());
}

bool PUniqueID::operator!=(const PUniqueID& other) const
{
    return !(*this == other);
}

// A destroyed identifier is left blank, so a stale copy never looks valid.
PUniqueID::~PUniqueID()
{
    init();
}

std::string PUniqueID::displayText() const
{
    return PBase::wwnameToText(data);
}

void PUniqueID::afterRestoreFromSaveString() {}

void PUniqueID::init()
{
    PBase::fastMemsetZero(data, sizeof data);
    dataLength = 0;
}

void PUniqueID::initFromString(const unsigned char* text)
{
    int length = text == nullptr ? 0 : static_cast<int>(strnlen(reinterpret_cast<const char*>(text), DATA_SIZE - 1));
    initFromData(text, length);
}

void PUniqueID::initFromData(const unsigned char* bytes, int length)
{
    PBase::fastMemsetZero(data, sizeof data);
    dataLength = length;
    if (bytes != nullptr) {
        PBase::fastMemcpy(data, sizeof data, bytes, clampedLength(length, DATA_SIZE));
    }
}

bool PUniqueID::isEmpty() const
{
    return dataLength == 0;
}

void PUniqueID::copyIdData(unsigned char* out, int outSize, int& length) const
{
    length = dataLength;
    PBase::fastMemcpy(out, outSize, data, usedLength());
}

bool PUniqueID::serialize(bool write, FILE* file, std::string& error)
{
    // Tag, length and body are contiguous, so they go as one block.
    constexpr unsigned int imageSize = sizeof idType + sizeof dataLength + DATA_SIZE;
    static_assert(imageSize == 277);
    return PBase::base_serialize(write, file, reinterpret_cast<char*>(&idType), imageSize, error);
}

std::string PUniqueID::getSaveString() const
{
    char head[16];
    snprintf(head, sizeof head, "%04X", static_cast<unsigned int>(dataLength));
    std::string text(1, static_cast<char>('0' + idType));
    text += head;
    for (int i = 0; i < usedLength(); ++i) {
        text += PBase::byteToHexText(data[i]);
    }
    return text;
}

bool PUniqueID::restoreFromSaveString(const std::string& text)
{
    if (text.empty() || text.find_first_not_of(kSaveStringDigits) != std::string::npos) {
        init();
        return false;
    }
    idType = text[0] - '0';
    PBase::fastMemsetZero(data, sizeof data);
    unsigned int length = 0;
    if (sscanf(text.substr(1, 4).c_str(), "%04X", &length) != 1) {
        length = 0;
    }
    dataLength = static_cast<int32_t>(length);

    int written = 0;
    size_t position = 5;
    for (unsigned int i = 0; i < length; ++i, position += 2) {
        unsigned int byte = 0;
        bool parsed = position < text.size() && sscanf(text.substr(position, 2).c_str(), "%02X", &byte) == 1;
        if (parsed && written < DATA_SIZE) {
            data[written++] = static_cast<unsigned char>(byte);
        }
    }
    if (written < DATA_SIZE) {
        data[written] = 0;
    }
    afterRestoreFromSaveString();
    return true;
}

int PUniqueID::usedLength() const
{
    return clampedLength(dataLength, DATA_SIZE);
}

void PUniqueID::initProtocolName(PBase::PROTOCOL_TYPE protocol, const unsigned char* name, int length, int lengthCap)
{
    PBase::fastMemsetZero(data, sizeof data);
    int nameLength = std::max(length, 0);
    if (lengthCap >= 0) {
        nameLength = std::min(nameLength, lengthCap);
    }
    if (name != nullptr) {
        PBase::fastMemcpy(data + kNameOffset, DATA_SIZE - kNameOffset, name, std::min(nameLength, kMaxNameCopy));
    }
    writeInt(0, protocol);
    dataLength = nameLength + kNameOffset;
}

void PUniqueID::initFcNameFromString(const std::string& text)
{
    unsigned char wwpn[8];
    unsigned int count = 0;
    // A name that cannot be read is kept as far as it was read.
    PBase::textToWwname(count, wwpn, sizeof wwpn, text);
    initProtocolName(PBase::PROTOCOL_FIBRE_CHANNEL, wwpn, static_cast<int>(count), -1);
}

PBase::PROTOCOL_TYPE PUniqueID::protocol() const
{
    return static_cast<PBase::PROTOCOL_TYPE>(readInt(0));
}

bool PUniqueID::copyProtocolName(PBase::PROTOCOL_TYPE wanted, unsigned char* out, unsigned int size,
                                 bool stopAtNameEnd) const
{
    if (protocol() != wanted || out == nullptr) {
        return false;
    }
    PBase::fastMemsetZero(out, size);
    int available = DATA_SIZE - kNameOffset;
    if (stopAtNameEnd) {
        available = clampedLength(dataLength - kNameOffset, available);
    }
    PBase::fastMemcpy(out, size, data + kNameOffset, std::min<unsigned int>(size, available));
    return true;
}

std::string PUniqueID::protocolNameText() const
{
    switch (protocol()) {
    case PBase::PROTOCOL_FIBRE_CHANNEL:
        return PBase::wwnameToText(data + kNameOffset);
    case PBase::PROTOCOL_ISCSI:
        return cStringAt(kNameOffset);
    default:
        return "Unknown -- Not Initialized";
    }
}

void PUniqueID::initCodeSetName(PBase::WWULN_CODE_SET_TYPE codeSet, int length, const unsigned char* name)
{
    init();
    if (!isKnownCodeSet(codeSet)) {
        return;
    }
    writeInt(0, codeSet);
    writeInt(4, length);
    if (name != nullptr) {
        PBase::fastMemcpy(data + kCodeSetNameOffset, DATA_SIZE - kCodeSetNameOffset, name,
                          clampedLength(length, DATA_SIZE - kCodeSetNameOffset));
    }
    dataLength = length + kCodeSetNameOffset;
}

PBase::WWULN_CODE_SET_TYPE PUniqueID::codeSet() const
{
    return static_cast<PBase::WWULN_CODE_SET_TYPE>(readInt(0));
}

int PUniqueID::codeSetNameLength() const
{
    return readInt(4);
}

std::string PUniqueID::codeSetNameText() const
{
    if (codeSet() == PBase::WWULN_CODE_SET_TEXT) {
        return cStringAt(kCodeSetNameOffset);
    }
    return PBase::wwulnToText(data + kCodeSetNameOffset,
                              clampedLength(codeSetNameLength(), DATA_SIZE - kCodeSetNameOffset), codeSet());
}

int32_t PUniqueID::readInt(int offset) const
{
    int32_t value;
    memcpy(&value, data + offset, sizeof value);
    return value;
}

void PUniqueID::writeInt(int offset, int32_t value)
{
    memcpy(data + offset, &value, sizeof value);
}

std::string PUniqueID::cStringAt(int offset) const
{
    const char* text = reinterpret_cast<const char*>(data + offset);
    return std::string(text, strnlen(text, DATA_SIZE - offset));
}

// ---- targets, initiators, devices ------------------------------------------

namespace {
// Longest name length recorded for a target or initiator.
constexpr int kMaxProtocolNameLength = 265;
// A device records iSCSI names of at most this length, and does not cap
// Fibre Channel names.
constexpr int kMaxDeviceIscsiNameLength = 255;
constexpr int kNoCap = -1;

int cStringLength(const unsigned char* text)
{
    return text == nullptr ? 0 : static_cast<int>(strlen(reinterpret_cast<const char*>(text)));
}
} // namespace

PTargetIDBase::PTargetIDBase() : PProtocolNameID(ID_TYPE_TARGET) {}

void PTargetIDBase::initFcTargetID(const unsigned char* wwpn, int length)
{
    initProtocolName(PBase::PROTOCOL_FIBRE_CHANNEL, wwpn, length, kMaxProtocolNameLength);
}

void PTargetIDBase::initFcTargetIDFromString(const std::string& text)
{
    initFcNameFromString(text);
}

void PTargetIDBase::initIscsiTargetID(const unsigned char* name)
{
    initProtocolName(PBase::PROTOCOL_ISCSI, name, cStringLength(name), kMaxProtocolNameLength);
}

bool PTargetIDBase::isFcTargetId() const
{
    return protocol() == PBase::PROTOCOL_FIBRE_CHANNEL;
}
bool PTargetIDBase::isIscsiTargetId() const
{
    return protocol() == PBase::PROTOCOL_ISCSI;
}

void PTargetID::initFromLunIdData(const unsigned char* bytes, int length)
{
    initFromData(bytes, length);
}

PInitiatorIDBase::PInitiatorIDBase() : PProtocolNameID(ID_TYPE_INITIATOR) {}

void PInitiatorIDBase::initFcInitiatorID(const unsigned char* wwpn, int length)
{
    initProtocolName(PBase::PROTOCOL_FIBRE_CHANNEL, wwpn, length, kMaxProtocolNameLength);
}

void PInitiatorIDBase::initFcInitiatorIDFromString(const std::string& text)
{
    initFcNameFromString(text);
}

void PInitiatorIDBase::initIscsiInitiatorID(const unsigned char* name)
{
    initProtocolName(PBase::PROTOCOL_ISCSI, name, cStringLength(name), kMaxProtocolNameLength);
}

bool PInitiatorIDBase::isFcInitiatorId() const
{
    return protocol() == PBase::PROTOCOL_FIBRE_CHANNEL;
}
bool PInitiatorIDBase::isIscsiInitiatorId() const
{
    return protocol() == PBase::PROTOCOL_ISCSI;
}

KDeviceIDBase::KDeviceIDBase() : PProtocolNameID(ID_TYPE_DEVICE) {}

void KDeviceIDBase::initFcDeviceID(const unsigned char* wwpn, int length)
{
    initProtocolName(PBase::PROTOCOL_FIBRE_CHANNEL, wwpn, length, kNoCap);
}

void KDeviceIDBase::initFcDeviceIDFromString(const std::string& text)
{
    initFcNameFromString(text);
}

void KDeviceIDBase::initIscsiDeviceID(const unsigned char* name)
{
    initProtocolName(PBase::PROTOCOL_ISCSI, name, cStringLength(name), kMaxDeviceIscsiNameLength);
}

bool KDeviceIDBase::isFcDeviceId() const
{
    return protocol() == PBase::PROTOCOL_FIBRE_CHANNEL;
}
bool KDeviceIDBase::isIscsiDeviceId() const
{
    return protocol() == PBase::PROTOCOL_ISCSI;
}

void KDeviceID::getTargetID(PTargetID& out) const
{
    out.init();
    if (isFcDeviceId()) {
        out.initFcTargetID(data + 4, 8);
    } else if (isIscsiDeviceId()) {
        std::string name = cStringAt(4);
        out.initIscsiTargetID(reinterpret_cast<const unsigned char*>(name.c_str()));
    }
}

void KDeviceID::getInitiatorID(PInitiatorID& out) const
{
    out.init();
    if (isFcDeviceId()) {
        out.initFcInitiatorID(data + 4, 8);
    } else if (isIscsiDeviceId()) {
        std::string name = cStringAt(4);
        out.initIscsiInitiatorID(reinterpret_cast<const unsigned char*>(name.c_str()));
    }
}

// ---- LUNs -------------------------------------------------------------------

PLunID::PLunID() : PUniqueID(ID_TYPE_LUN) {}

PLunID::PLunID(const PLunID& other) : PLunID()
{
    *this = other;
}

PLunID& PLunID::operator=(const PLunID& other)
{
    PUniqueID::operator=(other);
    target = other.target;
    return *this;
}

// Assigned through the base, the target is found again in the data.
PLunID& PLunID::operator=(const PUniqueID& other)
{
    PUniqueID::operator=(other);
    rebuildTargetFromData();
    return *this;
}

bool PLunID::initLunID(const PTargetID& lunTarget, int number, PBase::VPGROUP_INDEX vpg)
{
    init();
    target = lunTarget;
    int targetLength = clampedLength(lunTarget.getDataLength(), DATA_SIZE - TARGET_DATA_OFFSET);
    PBase::fastMemcpy(data + TARGET_DATA_OFFSET, DATA_SIZE - TARGET_DATA_OFFSET, lunTarget.getData(), targetLength);
    dataLength = lunTarget.getDataLength() + TARGET_DATA_OFFSET;
    writeInt(0, number);
    // "No VP group" is stored as unknown; callers learn of it by the result.
    bool validGroup = isValidVpGroup(vpg);
    data[4] = static_cast<unsigned char>(validGroup ? vpg : PBase::VPGROUP_UNKNOWN);
    return validGroup;
}

bool PLunID::initLunIdOnFcTargetFromString(const std::string& wwpnText, int number, PBase::VPGROUP_INDEX vpg)
{
    PTargetID fcTarget;
    fcTarget.initFcTargetIDFromString(wwpnText);
    return initLunID(fcTarget, number, vpg);
}

int PLunID::lunNumber() const
{
    return readInt(0);
}

PBase::VPGROUP_INDEX PLunID::vpgIndex() const
{
    return static_cast<PBase::VPGROUP_INDEX>(data[4]);
}

bool PLunID::isEqualLunNumber(int number, PBase::VPGROUP_INDEX vpg) const
{
    return isValidVpGroup(vpg) && lunNumber() == number && vpgIndex() == vpg;
}

void PLunID::afterRestoreFromSaveString()
{
    rebuildTargetFromData();
}

std::string PLunID::displayText() const
{
    return "LUN " + PBase::numberToText(lunNumber()) + "  " + PBase::vpGroupIndexToText(vpgIndex()) +
        "  on Target: " + target.displayText();
}

std::string PLunID::displayTextWithoutVpGroup() const
{
    return "LUN " + PBase::numberToText(lunNumber()) + "  on Target: " + target.displayText();
}

void PLunID::rebuildTargetFromData()
{
    target.initFromLunIdData(data + TARGET_DATA_OFFSET,
                             clampedLength(dataLength - TARGET_DATA_OFFSET, DATA_SIZE - TARGET_DATA_OFFSET));
}

PLunMaskID::PLunMaskID() : PUniqueID(ID_TYPE_LUN_MASK) {}

PLunMaskID::PLunMaskID(const PLunMaskID& other) : PLunMaskID()
{
    *this = other;
}

PLunMaskID& PLunMaskID::operator=(const PLunMaskID& other)
{
    PUniqueID::operator=(other);
    target = other.target;
    lun = other.lun;
    return *this;
}

PLunMaskID& PLunMaskID::operator=(const PUniqueID& other)
{
    PUniqueID::operator=(other);
    rebuildTargetFromData();
    lun.initLunID(target, readInt(0), static_cast<PBase::VPGROUP_INDEX>(data[4]));
    return *this;
}

void PLunMaskID::initMaskID(const PLunID& maskedLun)
{
    init();
    idType = ID_TYPE_LUN_MASK;
    lun = maskedLun;
    PBase::fastMemcpy(data, sizeof data, maskedLun.getData(), sizeof data);
    dataLength = maskedLun.getDataLength();
    rebuildTargetFromData();
}

// The data is cleared before the LUN number and VP group are read from it,
// so the restored LUN is LUN 0 on the target with an unknown VP group. Saved
// masks have always come back this way and their users expect it.
void PLunMaskID::afterRestoreFromSaveString()
{
    rebuildTargetFromData();
    init();
    lun.initLunID(target, readInt(0), static_cast<PBase::VPGROUP_INDEX>(data[4]));
}

void PLunMaskID::rebuildTargetFromData()
{
    target.initFromLunIdData(
        data + PLunID::TARGET_DATA_OFFSET,
        clampedLength(dataLength - PLunID::TARGET_DATA_OFFSET, DATA_SIZE - PLunID::TARGET_DATA_OFFSET));
}

PLunsForOneNameID::PLunsForOneNameID() : PUniqueID(ID_TYPE_LUNS_FOR_ONE_NAME) {}

bool PLunsForOneNameID::initLunsForOneNameIDFromBinaryData(PBase::LUN_NAME_TYPE type, const unsigned char* bytes,
                                                           int length)
{
    return initName(type, NAME_FORMAT_BINARY, bytes, length);
}

bool PLunsForOneNameID::initLunsForOneNameID(PBase::LUN_NAME_TYPE type, const std::string& name)
{
    return initName(type, NAME_FORMAT_ASCII, reinterpret_cast<const unsigned char*>(name.data()),
                    static_cast<int>(std::min<size_t>(name.size(), 0x7FFFFFFF)));
}

bool PLunsForOneNameID::initName(PBase::LUN_NAME_TYPE type, NAME_FORMAT format, const unsigned char* bytes, int length)
{
    init();
    writeInt(0, type);
    writeInt(4, format);
    int count = clampedLength(length, MAX_NAME_BYTES);
    if (bytes != nullptr) {
        PBase::fastMemcpy(data + NAME_OFFSET, DATA_SIZE - NAME_OFFSET, bytes, count);
    }
    dataLength = count + NAME_OFFSET;
    return length <= MAX_NAME_BYTES + 1;
}

PBase::LUN_NAME_TYPE PLunsForOneNameID::lunNameType() const
{
    return static_cast<PBase::LUN_NAME_TYPE>(readInt(0));
}

bool PLunsForOneNameID::isBinary() const
{
    return readInt(4) == NAME_FORMAT_BINARY;
}

// A binary name takes its length from bytes 8-11, which nothing fills, so it
// shows as empty; the key is meant for lookup, not for display.
std::string PLunsForOneNameID::displayShortText() const
{
    if (isBinary()) {
        return PBase::wwulnToText(data + NAME_OFFSET, clampedLength(readInt(8), DATA_SIZE - NAME_OFFSET),
                                  PBase::WWULN_CODE_SET_BINARY);
    }
    return cStringAt(NAME_OFFSET);
}

std::string PLunsForOneNameID::displayText() const
{
    return std::string(isBinary() ? "Binary " : "ASCII ") + PBase::lunNameTypeToText(lunNameType()) + " " +
        displayShortText();
}

// ---- identifiers of the adapter's own objects ------------------------------

KClusterID::KClusterID() : KUniqueID(ID_TYPE_CLUSTER) {}

bool KClusterID::initClusterID(const char* key, unsigned int length)
{
    if (length > MAX_KEY_LENGTH) {
        return false;
    }
    init();
    if (key != nullptr) {
        PBase::fastMemcpy(data, sizeof data, key, length);
    }
    dataLength = static_cast<int32_t>(length);
    return true;
}

bool KClusterID::isClusterKeyValid() const
{
    return std::any_of(data, data + usedLength(), [](unsigned char byte) { return byte != 0; });
}

std::string KClusterID::displayText() const
{
    return cStringAt(0);
}

KDriveID::KDriveID() : KUniqueID(ID_TYPE_DRIVE) {}

void KDriveID::initDriveID(PBase::WWULN_CODE_SET_TYPE set, int length, unsigned char* name)
{
    initCodeSetName(set, length, name);
}

int KDriveID::getWwulnIdLength() const
{
    return codeSetNameLength();
}

void KDriveID::getWwulnID(unsigned char* out, unsigned int size) const
{
    if (out == nullptr) {
        return;
    }
    // Bounded by the caller's size as well, so a bad length cannot overrun it.
    int count = std::min(clampedLength(codeSetNameLength(), DATA_SIZE - kCodeSetNameOffset),
                         static_cast<int>(std::min<unsigned int>(size, DATA_SIZE)));
    PBase::fastMemcpy(out, size, data + kCodeSetNameOffset, count);
}

std::string KDriveID::displayText() const
{
    return codeSetNameText();
}

KDrivePoolID::KDrivePoolID() : KUniqueID(ID_TYPE_DRIVE_POOL) {}

void KDrivePoolID::initDrivePoolID(unsigned char* name)
{
    init();
    if (name == nullptr) {
        return;
    }
    int length = static_cast<int>(strnlen(reinterpret_cast<const char*>(name), MAX_NAME_LENGTH));
    PBase::fastMemcpy(data, sizeof data, name, length);
    dataLength = length;
}

std::string KDrivePoolID::displayText() const
{
    return cStringAt(0);
}

KWwulnLunID::KWwulnLunID() : KUniqueID(ID_TYPE_WWULN_LUN) {}

void KWwulnLunID::initWwulnLunID(PBase::WWULN_CODE_SET_TYPE set, int length, unsigned char* name)
{
    initCodeSetName(set, length, name);
}

bool KWwulnLunID::copyWwulnInfo(PBase::WWULN_CODE_SET_TYPE& set, unsigned short& length, unsigned char* out,
                                unsigned int) const
{
    if (!isKnownCodeSet(codeSet()) || codeSetNameLength() == 0 || out == nullptr) {
        return false;
    }
    set = codeSet();
    length = static_cast<unsigned short>(codeSetNameLength());
    PBase::fastMemcpy(out, WWULN_COPY_SIZE, data + kCodeSetNameOffset, WWULN_COPY_SIZE);
    return true;
}

std::string KWwulnLunID::displayText() const
{
    return codeSetNameText();
}
