// Identifiers of everything the management library addresses by name.
//
// Every identifier shares one fixed body (a class tag, a used length and 269
// bytes), so any of them can be compared, copied, saved and turned into a
// save string by the same code. The concrete classes only lay out the bytes
// differently. The body is exchanged with the library by memory image.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "records/PBase.h"

class CodeAddressEraser;

class PUniqueID {
public:
    static constexpr int DATA_SIZE = 269;

    // Class tags; they are stored, so their values never change.
    enum ID_TYPE : int32_t {
        ID_TYPE_NONE = 0,
        ID_TYPE_INITIATOR = 1,
        ID_TYPE_TARGET = 2,
        ID_TYPE_LUN = 5,
        ID_TYPE_LUN_MASK = 6,
        ID_TYPE_LUNS_FOR_ONE_NAME = 12,
        ID_TYPE_CLUSTER = 1001,
        ID_TYPE_DEVICE = 1003,
        ID_TYPE_DRIVE = 1004,
        ID_TYPE_DRIVE_POOL = 1005,
        ID_TYPE_WWULN_LUN = 1006,
    };

    PUniqueID();
    PUniqueID(const PUniqueID& other);

    // Virtual slots in this order are part of the library contract.
    virtual PUniqueID& operator=(const PUniqueID& other);
    virtual bool operator==(const PUniqueID& other) const;
    virtual bool operator!=(const PUniqueID& other) const;
    virtual ~PUniqueID();
    virtual std::string displayText() const;
    virtual void afterRestoreFromSaveString();

    void init();
    void initFromString(const unsigned char* text);
    void initFromData(const unsigned char* bytes, int length);
    bool isEmpty() const;
    void copyIdData(unsigned char* out, int outSize, int& length) const;

    bool serialize(bool write, FILE* file, std::string& error);
    std::string getSaveString() const;
    bool restoreFromSaveString(const std::string& text);

    int32_t getIdType() const { return idType; }
    int32_t getDataLength() const { return dataLength; }
    const unsigned char* getData() const { return data; }

protected:
    explicit PUniqueID(ID_TYPE type);

    // Number of bytes of data in use, clamped to the body so that a length
    // taken from a file or the library can never lead outside it.
    int usedLength() const;

    // Shared by the target, initiator and device identifiers: bytes 0-3
    // hold the protocol, the name follows from byte 4.
    void initProtocolName(PBase::PROTOCOL_TYPE protocol, const unsigned char* name, int length, int lengthCap);
    void initFcNameFromString(const std::string& text);
    PBase::PROTOCOL_TYPE protocol() const;
    bool copyProtocolName(PBase::PROTOCOL_TYPE wanted, unsigned char* out, unsigned int size, bool stopAtNameEnd) const;
    std::string protocolNameText() const;

    // Shared by the drive and WWULN LUN identifiers: code set in bytes 0-3,
    // name length in bytes 4-7, the name from byte 8.
    void initCodeSetName(PBase::WWULN_CODE_SET_TYPE codeSet, int length, const unsigned char* name);
    PBase::WWULN_CODE_SET_TYPE codeSet() const;
    int codeSetNameLength() const;
    std::string codeSetNameText() const;

    int32_t readInt(int offset) const;
    void writeInt(int offset, int32_t value);
    // Text stored as a C string from `offset`, never read past the body.
    std::string cStringAt(int offset) const;

    int32_t idType;
    int32_t dataLength;
    unsigned char data[DATA_SIZE];
};

static_assert(sizeof(PUniqueID) == 288, "identifier image: vptr, tag, length, 269 bytes");

// ---- targets, initiators, devices ------------------------------------------

// What targets, initiators and devices share: a protocol in bytes 0-3 and
// the name from byte 4. It adds no fields.
template <typename Base>
class PProtocolNameID : public Base {
public:
    // Fibre Channel only: copies `size` bytes of the name.
    bool getFcWwpn(unsigned char* out, unsigned int size) const
    {
        return this->copyProtocolName(PBase::PROTOCOL_FIBRE_CHANNEL, out, size, false);
    }
    // iSCSI only: copies the name, at most `size` bytes.
    bool getIscsiName(unsigned char* out, unsigned int size) const
    {
        return this->copyProtocolName(PBase::PROTOCOL_ISCSI, out, size, true);
    }
    std::string displayText() const override { return this->protocolNameText(); }

protected:
    using Base::Base;
};

class PTargetIDBase : public PProtocolNameID<PUniqueID> {
public:
    PTargetIDBase();

    void initFcTargetID(const unsigned char* wwpn, int length);
    void initFcTargetIDFromString(const std::string& text);
    void initIscsiTargetID(const unsigned char* name);
    bool isFcTargetId() const;
    bool isIscsiTargetId() const;
};

class PTargetID : public PTargetIDBase {
public:
    // Takes a target identifier back out of the data of a LUN identifier.
    void initFromLunIdData(const unsigned char* bytes, int length);
};

static_assert(sizeof(PTargetID) == 288, "target identifier image");

class PInitiatorIDBase : public PProtocolNameID<PUniqueID> {
public:
    PInitiatorIDBase();

    void initFcInitiatorID(const unsigned char* wwpn, int length);
    void initFcInitiatorIDFromString(const std::string& text);
    void initIscsiInitiatorID(const unsigned char* name);
    bool isFcInitiatorId() const;
    bool isIscsiInitiatorId() const;
};

class PInitiatorID : public PInitiatorIDBase {};

static_assert(sizeof(PInitiatorID) == 288, "initiator identifier image");

// ---- LUNs -------------------------------------------------------------------

class PLunID : public PUniqueID {
public:
    PLunID();
    PLunID(const PLunID& other);
    PLunID& operator=(const PLunID& other);
    PLunID& operator=(const PUniqueID& other) override;

    bool initLunID(const PTargetID& target, int lunNumber, PBase::VPGROUP_INDEX vpg);
    bool initLunIdOnFcTargetFromString(const std::string& wwpnText, int lunNumber, PBase::VPGROUP_INDEX vpg);
    const PTargetID& targetID() const { return target; }
    int lunNumber() const;
    PBase::VPGROUP_INDEX vpgIndex() const;
    bool isEqualLunNumber(int number, PBase::VPGROUP_INDEX vpg) const;
    void afterRestoreFromSaveString() override;
    std::string displayText() const override;
    std::string displayTextWithoutVpGroup() const;

    // Offset in data where the target's own data starts.
    static constexpr int TARGET_DATA_OFFSET = 5;

private:
    void rebuildTargetFromData();

    PTargetID target;
};

static_assert(sizeof(PLunID) == 576, "LUN identifier image: body and target");

class PLunMaskID : public PUniqueID {
public:
    PLunMaskID();
    PLunMaskID(const PLunMaskID& other);
    PLunMaskID& operator=(const PLunMaskID& other);
    PLunMaskID& operator=(const PUniqueID& other) override;

    void initMaskID(const PLunID& lun);
    void afterRestoreFromSaveString() override;
    const PLunID& lunID() const { return lun; }
    const PTargetID& targetID() const { return lun.targetID(); }

private:
    // Result images clear the code addresses of the identifiers it holds.
    friend void eraseCodeAddresses(CodeAddressEraser& eraser, PLunMaskID const& record);

    void rebuildTargetFromData();

    PTargetID target;
    PLunID lun;
};

static_assert(sizeof(PLunMaskID) == 1152, "LUN mask identifier image: body, target, LUN");

class PLunsForOneNameID : public PUniqueID {
public:
    // Bytes 4-7 hold how the name is stored.
    enum NAME_FORMAT : int32_t {
        NAME_FORMAT_BINARY = 1,
        NAME_FORMAT_ASCII = 2,
    };
    static constexpr int NAME_OFFSET = 12;
    static constexpr int MAX_NAME_BYTES = 256;

    PLunsForOneNameID();

    bool initLunsForOneNameIDFromBinaryData(PBase::LUN_NAME_TYPE type, const unsigned char* bytes, int length);
    bool initLunsForOneNameID(PBase::LUN_NAME_TYPE type, const std::string& name);
    PBase::LUN_NAME_TYPE lunNameType() const;
    bool isBinary() const;
    std::string displayShortText() const;
    std::string displayText() const override;

private:
    bool initName(PBase::LUN_NAME_TYPE type, NAME_FORMAT format, const unsigned char* bytes, int length);
};

// ---- identifiers of the adapter's own objects ------------------------------

class KUniqueID : public PUniqueID {
public:
    KUniqueID() = default;

protected:
    explicit KUniqueID(ID_TYPE type) : PUniqueID(type) {}
};

class KClusterID : public KUniqueID {
public:
    static constexpr unsigned int MAX_KEY_LENGTH = 16;

    KClusterID();

    bool initClusterID(const char* key, unsigned int length);
    bool isClusterKeyValid() const;
    std::string displayText() const override;
};

class KDeviceIDBase : public PProtocolNameID<KUniqueID> {
public:
    KDeviceIDBase();

    void initFcDeviceID(const unsigned char* wwpn, int length);
    void initFcDeviceIDFromString(const std::string& text);
    void initIscsiDeviceID(const unsigned char* name);
    bool isFcDeviceId() const;
    bool isIscsiDeviceId() const;
};

class KDeviceID : public KDeviceIDBase {
public:
    void getTargetID(PTargetID& out) const;
    void getInitiatorID(PInitiatorID& out) const;
};

static_assert(sizeof(KDeviceID) == 288, "device identifier image");

class KDriveID : public KUniqueID {
public:
    KDriveID();

    void initDriveID(PBase::WWULN_CODE_SET_TYPE codeSet, int length, unsigned char* name);
    int getWwulnIdLength() const;
    void getWwulnID(unsigned char* out, unsigned int size) const;
    std::string displayText() const override;
};

class KDrivePoolID : public KUniqueID {
public:
    static constexpr int MAX_NAME_LENGTH = 32;

    KDrivePoolID();

    void initDrivePoolID(unsigned char* name);
    std::string displayText() const override;
};

class KWwulnLunID : public KUniqueID {
public:
    static constexpr unsigned int WWULN_COPY_SIZE = 256;

    KWwulnLunID();

    void initWwulnLunID(PBase::WWULN_CODE_SET_TYPE codeSet, int length, unsigned char* name);
    // Always copies 256 bytes: `out` must hold that many.
    bool copyWwulnInfo(PBase::WWULN_CODE_SET_TYPE& codeSet, unsigned short& length, unsigned char* out,
                       unsigned int size) const;
    std::string displayText() const override;
};

static_assert(sizeof(KClusterID) == 288 && sizeof(KDriveID) == 288 && sizeof(KDrivePoolID) == 288 &&
                  sizeof(KWwulnLunID) == 288 && sizeof(PLunsForOneNameID) == 288,
              "identifier images all share one size");
