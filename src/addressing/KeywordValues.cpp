// Reading the text of one keyword as a number, a size, a time, a switch or
// an identifier. A value that fails its check is also emptied, so that an
// interactive prompt for it starts blank instead of offering the bad text.
#include <cctype>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "core/EnumStrList.h"
#include "core/TokenCmd.h"
#include "records/PTime.h"
#include "records/PUniqueID.h"

namespace {

// Digits are kept in a text of their own; more than this and only the
// characters past it count, so that an over-long value cannot overflow the
// scan below.
constexpr size_t kMaxNumberDigits = 32;
constexpr size_t kMaxTimeText = 32;
constexpr int kMaxClusterIdLength = 16;
constexpr unsigned long kWwnameBytes = 8;
constexpr unsigned long kDriveNameBytes = 64;

bool isHexLetter(char c)
{
    char const upper = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return upper >= 'A' && upper <= 'F';
}

bool isDecimalDigit(char c)
{
    return c >= '0' && c <= '9';
}

struct NumberText {
    std::string digits;
    bool hexadecimal = false;
    bool decimalPoint = false;
};

// Every character but digits, hexadecimal letters, "x" and "." is passed
// over, which is what lets units ("4GB") and grouping signs ("1,000") stand
// in a number. An "x" starts the number afresh, dropping a "0x" prefix.
NumberText collectDigits(std::string const& value)
{
    NumberText number;
    for (char const c : value) {
        if (isDecimalDigit(c) || isHexLetter(c)) {
            number.digits += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        } else if (c == 'x' || c == 'X') {
            number.hexadecimal = true;
            number.digits.clear();
        } else if (c == '.') {
            number.decimalPoint = true;
            return number;
        }
    }
    if (number.digits.size() > kMaxNumberDigits)
        number.digits.erase(0, kMaxNumberDigits);
    return number;
}

// The number as wide as needed for an honest range check: a hexadecimal
// value of up to 32 bits reads as a 32-bit word (so "FFFFFFFF" is -1), a
// wider one stays too large for any range; decimal reading stops at the
// first letter.
long long numberFromDigits(NumberText const& number)
{
    if (number.digits.empty())
        return 0;
    if (number.hexadecimal) {
        unsigned long long const wide = std::strtoull(number.digits.c_str(), nullptr, 16);
        if (wide > UINT_MAX)
            return LLONG_MAX;
        return static_cast<int32_t>(static_cast<uint32_t>(wide));
    }
    return std::strtoll(number.digits.c_str(), nullptr, 10);
}

int clampToInt(long long value)
{
    if (value > INT_MAX)
        return INT_MAX;
    if (value < INT_MIN)
        return INT_MIN;
    return static_cast<int>(value);
}

std::string rangeText(std::string const& name, long long min, long long max)
{
    return "-" + name + " modifier requires a number in the range " + std::to_string(min) + " to " +
        std::to_string(max);
}

// The keyword, and whether it stands on the line; null when the command has
// no such keyword, with `err` as the lookup left it.
TokenModifierString* lookUp(TokenCmd const& command, ModifierId::MODIFIER_ID id, bool& found, std::string& err)
{
    TokenModifierString* const keyword = command.findModifier(id, err);
    if (keyword)
        found = !keyword->isDefault;
    return keyword;
}

bool refuse(TokenModifierString* keyword, std::string& err, std::string const& message)
{
    err = message;
    keyword->setValue(std::string());
    return false;
}

unsigned int binaryShiftForUnit(std::string const& unit)
{
    if (unit == "KB")
        return 10;
    if (unit == "MB")
        return 20;
    if (unit == "TB")
        return 40;
    if (unit == "PB")
        return 50;
    return 30; // "GB", and any other unit or none: sizes count in gigabytes
}

std::string nonDigitsInCapitals(std::string const& value)
{
    std::string unit;
    for (char const c : value)
        if (!isDecimalDigit(c))
            unit += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return unit;
}

class EnableWords : public EnumStrList<int> {
public:
    EnableWords()
    {
        for (char const* word : {"no", "off", "false", "yes", "on", "true"})
            add(static_cast<int>(size()), word);
    }
    static constexpr int kFirstEnablingWord = 3;
};

// Which keywords of a pair (Fibre Channel and iSCSI) make an identifier, and
// how the two forms are built.
template <typename Id>
struct ProtocolPair {
    ModifierId::MODIFIER_ID fcKeyword;
    ModifierId::MODIFIER_ID isKeyword;
    void (Id::*initFc)(unsigned char const*, int);
    void (Id::*initIscsi)(unsigned char const*);
    // A Fibre Channel text that cannot be read is an error of its own only
    // for targets; elsewhere it just leaves that form empty.
    bool badFcTextIsError;
};

template <typename Id>
bool readProtocolPair(TokenCmd const& command, ProtocolPair<Id> const& pair, Id& out, bool& found, std::string& err)
{
    out.init();
    TokenModifierString* const fc = command.findModifier(pair.fcKeyword, err);
    if (!fc)
        return false;
    TokenModifierString* const is = command.findModifier(pair.isKeyword, err);
    if (!is)
        return false;

    Id fcId;
    unsigned char wwpn[kWwnameBytes];
    unsigned int count = 0;
    if (PBase::textToWwname(count, wwpn, sizeof wwpn, fc->value)) {
        (fcId.*pair.initFc)(wwpn, static_cast<int>(kWwnameBytes));
    } else if (pair.badFcTextIsError && !fc->isDefault) {
        err = fc->value + "\" is not valid text for an FC target";
        return false;
    }
    // An empty name is no iSCSI identifier, so that a remembered Fibre
    // Channel value is still chosen when neither keyword is on the line.
    Id isId;
    if (!is->value.empty())
        (isId.*pair.initIscsi)(reinterpret_cast<unsigned char const*>(is->value.c_str()));

    std::string const both = "-" + is->name + " or -" + fc->name;
    if (!is->isDefault && !fc->isDefault) {
        err = "Only one of " + both + " can be used";
        return false;
    }
    Id const* chosen = nullptr;
    if (!is->isDefault) {
        found = true;
        chosen = &isId;
    } else if (!fc->isDefault) {
        found = true;
        chosen = &fcId;
    } else {
        chosen = isId.isEmpty() ? &fcId : &isId;
    }
    if (chosen->isEmpty()) {
        err = "Please specify " + both;
        return false;
    }
    out = *chosen;
    return true;
}

// A name kept as text (code set 2), cut to what an identifier can hold.
template <typename Id>
void initTextName(Id& out, void (Id::*initName)(PBase::WWULN_CODE_SET_TYPE, int, unsigned char*),
                  std::string const& value)
{
    std::string text = value.substr(0, KWwulnLunID::WWULN_COPY_SIZE);
    (out.*initName)(PBase::WWULN_CODE_SET_TEXT, static_cast<int>(text.size()),
                    reinterpret_cast<unsigned char*>(text.data()));
}

// The value as a text identifier of a drive or WWULN.
template <typename Id>
bool readAsciiName(TokenCmd const& command, ModifierId::MODIFIER_ID id,
                   void (Id::*initName)(PBase::WWULN_CODE_SET_TYPE, int, unsigned char*), Id& out, bool& found,
                   std::string& err)
{
    out.init();
    found = false;
    TokenModifierString* const keyword = lookUp(command, id, found, err);
    if (!keyword || !found)
        return false;
    initTextName(out, initName, keyword->value);
    return true;
}

} // namespace

bool TokenCmd::getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, int min, int max, int& value,
                                                       bool& found, std::string& err)
{
    TokenModifierString* const keyword = lookUp(*this, id, found, err);
    if (!keyword)
        return false;
    if (!found)
        return true;
    NumberText const number = collectDigits(keyword->value);
    if (number.decimalPoint)
        return refuse(keyword, err, "-" + keyword->name + " modifier does not allow decimal point.");
    long long const wide = numberFromDigits(number);
    value = clampToInt(wide);
    if (wide >= min && wide <= max)
        return true;
    if (max == INT_MAX)
        return refuse(keyword, err,
                      "-" + keyword->name + " modifier requires a numeric value " + std::to_string(min) +
                          " or greater");
    return refuse(keyword, err, rangeText(keyword->name, min, max));
}

bool TokenCmd::getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, long long min, long long max,
                                                          long long& value, bool& found, std::string& err)
{
    TokenModifierString* const keyword = lookUp(*this, id, found, err);
    if (!keyword)
        return false;
    if (!found)
        return true;
    value = keyword->value.empty() ? 0 : std::strtoll(keyword->value.c_str(), nullptr, 10);
    if (value >= min && value <= max)
        return true;
    return refuse(keyword, err, rangeText(keyword->name, min, max));
}

bool TokenCmd::getByteSizeFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, unsigned long long& bytes,
                                                         bool& found, std::string& err)
{
    int number = 0;
    if (!getNumberFromCommandLineModifierIfFound(id, 1, INT_MAX, number, found, err))
        return false;
    bytes = 0;
    if (!found)
        return true;
    TokenModifierString* const keyword = findModifier(id, err);
    unsigned int const shift = binaryShiftForUnit(nonDigitsInCapitals(keyword->value));
    unsigned long long const count = static_cast<unsigned long long>(number);
    // A petabyte count that does not fit in 64 bits must not wrap round to
    // a small size.
    if (count > (ULLONG_MAX >> shift))
        return refuse(keyword, err, "-" + keyword->name + " modifier value is too large");
    bytes = count << shift;
    return true;
}

bool TokenCmd::getTimeFromCommandLineModifierIfFound(PTime& time, bool& found, std::string& err)
{
    time.initFromLocalTime();
    TokenModifierString* const keyword = lookUp(*this, ModifierId::MODIFIER_TIME, found, err);
    if (!keyword)
        return false;
    if (!found)
        return true;
    std::string text = keyword->value;
    if (text.size() > kMaxTimeText)
        text.erase(0, kMaxTimeText);
    int month = 0, day = 0, year = 0, hour = 0, minute = 0, second = 0;
    int const read =
        std::sscanf(text.c_str(), "%02d/%02d/%04d %02d:%02d:%02d", &month, &day, &year, &hour, &minute, &second);
    bool const valid = read == 6 && year >= 1970 && year <= 2040 && month >= 1 && month <= 12 && day >= 0 &&
        day <= 31 && hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59;
    if (!valid)
        return refuse(keyword, err,
                      "Enter time in a quoted string \"MM/DD/YYYY HH:MM:SS\", with hour specified 0 to 23");
    tm broken{};
    broken.tm_year = year - 1900;
    broken.tm_mon = month - 1;
    broken.tm_mday = day;
    broken.tm_hour = hour;
    broken.tm_min = minute;
    broken.tm_sec = second;
    broken.tm_isdst = -1; // let the local rules decide on summer time
    time.initFromLocalTimeStruct(&broken);
    return true;
}

bool TokenCmd::getEnableFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, bool& enable, bool& found,
                                                       std::string& err)
{
    TokenModifierString* const keyword = lookUp(*this, id, found, err);
    if (!keyword)
        return false;
    if (!found)
        return true;
    static EnableWords const words;
    int const word = words.valFromPartialText(keyword->value, err);
    if (!err.empty()) {
        keyword->setValue(std::string());
        return false;
    }
    enable = word >= EnableWords::kFirstEnablingWord;
    return true;
}

bool TokenCmd::getClusterIdFromCommandLineModifiers(KClusterID& id, bool& found, std::string& err)
{
    id.init();
    found = false;
    TokenModifierString* const keyword = lookUp(*this, ModifierId::MODIFIER_CLUSTERID, found, err);
    if (!keyword)
        return false;
    if (!found)
        return true;
    if (keyword->value.size() > static_cast<size_t>(kMaxClusterIdLength)) {
        err = "Maximum cluster ID size is " + std::to_string(kMaxClusterIdLength) + " bytes";
        return false;
    }
    id.initClusterID(keyword->value.c_str(), static_cast<unsigned int>(keyword->value.size()));
    if (id.isEmpty()) {
        err = "Please supply text input for -cluster";
        return false;
    }
    return true;
}

bool TokenCmd::getDriveIdFromCommandLineModifiers(KDriveID& id, bool& found, std::string& err)
{
    id.init();
    found = false;
    TokenModifierString* const keyword = lookUp(*this, ModifierId::MODIFIER_DRIVE, found, err);
    if (!keyword)
        return false;
    if (!found)
        return true;
    unsigned char bytes[kDriveNameBytes];
    unsigned int count = 0;
    if (PBase::textToWwname(count, bytes, sizeof bytes, keyword->value)) {
        id.initDriveID(PBase::WWULN_CODE_SET_BINARY, static_cast<int>(count), bytes);
        return true;
    }
    initTextName(id, &KDriveID::initDriveID, keyword->value);
    return true;
}

bool TokenCmd::getDeviceIdFromCommandLineModifiers(KDeviceID& id, bool& found, std::string& err)
{
    found = false;
    ProtocolPair<KDeviceID> const pair{ModifierId::MODIFIER_FC_DEVICE, ModifierId::MODIFIER_IS_DEVICE,
                                       &KDeviceID::initFcDeviceID, &KDeviceID::initIscsiDeviceID, false};
    return readProtocolPair(*this, pair, id, found, err);
}

bool TokenCmd::getInitiatorIdFromCommandLineModifiers(PInitiatorID& id, bool& found, std::string& err)
{
    found = false;
    ProtocolPair<PInitiatorID> const pair{ModifierId::MODIFIER_FC_INITIATOR, ModifierId::MODIFIER_IS_INITIATOR,
                                          &PInitiatorID::initFcInitiatorID, &PInitiatorID::initIscsiInitiatorID, false};
    return readProtocolPair(*this, pair, id, found, err);
}

bool TokenCmd::getTargetIdFromCommandLineModifiers(bool destination, PTargetID& id, bool& found, std::string& err)
{
    found = false;
    ProtocolPair<PTargetID> const pair{
        destination ? ModifierId::MODIFIER_DMDEST_FC_TARGET : ModifierId::MODIFIER_FC_TARGET,
        destination ? ModifierId::MODIFIER_DMDEST_IS_TARGET : ModifierId::MODIFIER_IS_TARGET,
        &PTargetID::initFcTargetID, &PTargetID::initIscsiTargetID, true};
    return readProtocolPair(*this, pair, id, found, err);
}

bool TokenCmd::getAsciiDriveIDFromCommandLine(KDriveID& id, bool& found, std::string& err)
{
    return readAsciiName(*this, ModifierId::MODIFIER_DRIVE, &KDriveID::initDriveID, id, found, err);
}

bool TokenCmd::getAsciiSSDLunIDFromCommandLine(KWwulnLunID& id, bool& found, std::string& err)
{
    return readAsciiName(*this, ModifierId::MODIFIER_DRIVE, &KWwulnLunID::initWwulnLunID, id, found, err);
}

bool TokenCmd::getAsciiWwulnFromCommandLine(KWwulnLunID& id, bool& found, std::string& err)
{
    return readAsciiName(*this, ModifierId::MODIFIER_LUN_WWULN, &KWwulnLunID::initWwulnLunID, id, found, err);
}
