#include "records/PBase.h"

#include <cctype>
#include <cstdarg>
#include <cstring>
#include <iterator>

namespace {

constexpr unsigned long long kOneGiga = 1ULL << 30;

std::string formatted(const char* format, ...) __attribute__((format(printf, 1, 2)));

std::string formatted(const char* format, ...)
{
    char buffer[128];
    va_list args;
    va_start(args, format);
    int n = vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    if (n <= 0) {
        return std::string();
    }
    return std::string(buffer, static_cast<size_t>(n) < sizeof buffer ? n : sizeof buffer - 1);
}

// Names and identifiers are written on every line of the LUN and port
// listings; writing their digits directly spares a format parse per call.
constexpr char kUpperHexDigits[] = "0123456789ABCDEF";

// Each byte as two upper-case digits, a dash between groups of `group` bytes.
std::string hexBytesText(const unsigned char* bytes, int count, int group)
{
    std::string text;
    text.reserve(static_cast<size_t>(count > 0 ? count * 3 : 0));
    for (int i = 0; i < count; ++i) {
        if (i > 0 && i % group == 0) {
            text += '-';
        }
        text += kUpperHexDigits[bytes[i] >> 4];
        text += kUpperHexDigits[bytes[i] & 15];
    }
    return text;
}

bool isHexDigit(char c)
{
    return std::isxdigit(static_cast<unsigned char>(c)) != 0;
}

int hexValue(char c)
{
    return (c >= '0' && c <= '9') ? c - '0' : std::tolower(static_cast<unsigned char>(c)) - 'a' + 10;
}

// Appends the leading zeros of a fraction shown in thousandths, judged on the
// fraction itself, then the thousandths.
void appendThousandths(std::string& text, unsigned long long rem, unsigned int shift)
{
    text += ".";
    float fraction = static_cast<float>(rem) * (1.0f / static_cast<float>(1ULL << shift));
    if (fraction * 10 < 1) {
        text += "0";
    }
    if (fraction * 100 < 1) {
        text += "0";
    }
    if (fraction * 1000 < 1) {
        text += "0";
    }
    text += PBase::ui64NumberToText((rem * 1000) >> shift);
}

} // namespace

PBase::PBase() : untouchedWord(0), serialOffset(0), serialSize(0) {}

PBase::PBase(const PBase&) : untouchedWord(0), serialOffset(0), serialSize(0) {}

// The saved area belongs to the target's own init, which every derived
// operator= calls first; nothing of the base is copied.
PBase& PBase::operator=(const PBase&)
{
    return *this;
}

PBase::~PBase() = default;

void PBase::initSerialization(void* firstField, unsigned int objectSize)
{
    if (firstField == nullptr) {
        serialOffset = 0;
        serialSize = 0;
        return;
    }
    serialOffset = static_cast<uint32_t>(static_cast<char*>(firstField) - reinterpret_cast<char*>(this));
    serialSize = objectSize - serialOffset;
}

bool PBase::serialize(bool write, FILE* file, std::string& error)
{
    if (serialOffset == 0) {
        return true;
    }
    return base_serialize(write, file, reinterpret_cast<char*>(this) + serialOffset, serialSize, error);
}

void PBase::copySavedArea(const void* objectImage)
{
    if (serialOffset == 0 || objectImage == nullptr) {
        return;
    }
    fastMemcpy(reinterpret_cast<char*>(this) + serialOffset, serialSize,
               static_cast<const char*>(objectImage) + serialOffset, serialSize);
}

bool PBase::base_serialize(bool write, FILE* file, char* buffer, unsigned int length, std::string& error)
{
    size_t count = 0;
    if (file != nullptr && buffer != nullptr) {
        count = write ? fwrite(buffer, 1, length, file) : fread(buffer, 1, length, file);
    }
    if (count == 0) {
        error += write ? "Could not write to file" : "Could not read from file";
        return false;
    }
    return true;
}

// Identifiers of 269 bytes are copied and blanked with every record that
// holds one; the library's own block routines move them faster than a loop
// of 32-bit words would, with the same bytes as the result.
void PBase::fastMemcpy(void* dst, unsigned long, const void* src, unsigned long count)
{
    if (count != 0) {
        memcpy(dst, src, count);
    }
}

void PBase::fastMemsetZero(void* dst, unsigned long count)
{
    if (count != 0) {
        memset(dst, 0, count);
    }
}

bool PBase::fastIsEqualMemcmp(const void* a, unsigned long, const void* b, unsigned long count)
{
    return count == 0 || memcmp(a, b, count) == 0;
}

bool PBase::fastIsEqualStringCompare(const std::string& a, const std::string& b, bool caseSensitive)
{
    if (a.size() != b.size()) {
        return false;
    }
    if (caseSensitive) {
        return fastIsEqualMemcmp(a.data(), a.size(), b.data(), b.size());
    }
    for (size_t i = 0; i < a.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

bool PBase::isBitSet(unsigned int value, unsigned int bit)
{
    return bit < 32 && ((value >> bit) & 1U) != 0;
}

bool PBase::isValidTcpWindowSize(TCPWINDOWSIZE_TYPE size)
{
    int32_t value = size;
    return value >= TCPWINDOWSIZE_8192 && value <= TCPWINDOWSIZE_16777216 && (value & (value - 1)) == 0;
}

PBase::VPGROUP_INDEX PBase::convertIntToVpIndex(int index)
{
    return (index >= VPGROUP_NONE && index <= VPGROUP_4) ? static_cast<VPGROUP_INDEX>(index) : VPGROUP_UNKNOWN;
}

std::string PBase::numberToText(int value)
{
    return std::to_string(value);
}
std::string PBase::numberToHexText(unsigned int value)
{
    return formatted("%x", value);
}
std::string PBase::i64NumberToText(long long value)
{
    return std::to_string(value);
}
std::string PBase::ui64NumberToText(unsigned long long value)
{
    return std::to_string(value);
}
std::string PBase::ui64NumberToHexText(unsigned long long value)
{
    char digits[16];
    size_t count = 0;
    do {
        digits[count++] = kUpperHexDigits[value & 15];
        value >>= 4;
    } while (value != 0);
    return std::string(std::make_reverse_iterator(digits + count), std::make_reverse_iterator(digits));
}
std::string PBase::byteToHexText(unsigned char value)
{
    return hexBytesText(&value, 1, 1);
}
std::string PBase::floatToText(float value)
{
    return formatted("%f", static_cast<double>(value));
}
std::string PBase::yesOrNoToText(bool value)
{
    return value ? "Yes" : "No";
}
std::string PBase::upOrDownToText(bool value)
{
    return value ? "Up" : "Down";
}
std::string PBase::onOrOffToText(bool value)
{
    return value ? "On" : "Off";
}
std::string PBase::enableToText(bool value)
{
    return value ? "Enabled" : "Disabled";
}

std::string PBase::wwnameToText(const unsigned char* n)
{
    return hexBytesText(n, 8, 2);
}

std::string PBase::wwnameToText_single_bytes(const unsigned char* n)
{
    return hexBytesText(n, 8, 1);
}

std::string PBase::portIdToText(const unsigned char* id)
{
    return hexBytesText(id, 3, 1);
}

std::string PBase::portIdToText(unsigned char* id, unsigned int)
{
    return portIdToText(static_cast<const unsigned char*>(id));
}

std::string PBase::uCharPtrToJavaString(unsigned char* text)
{
    return text == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(text));
}

std::string PBase::charFieldToText(const char* field, unsigned long size)
{
    return field == nullptr ? std::string() : std::string(field, strnlen(field, size));
}

void PBase::textToCharField(char* field, unsigned long size, const std::string& text)
{
    if (field == nullptr || size == 0) {
        return;
    }
    fastMemsetZero(field, size);
    fastMemcpy(field, size, text.data(), text.size() < size ? text.size() : size - 1);
}

std::string PBase::wwulnToText(const unsigned char* data, int length, WWULN_CODE_SET_TYPE codeSet)
{
    if (data == nullptr) {
        return std::string();
    }
    if (codeSet == WWULN_CODE_SET_TEXT) {
        return std::string(reinterpret_cast<const char*>(data));
    }
    return hexBytesText(data, length, 2);
}

bool PBase::textToWwname(unsigned int& count, unsigned char* out, unsigned long outSize, const std::string& text)
{
    count = 0;
    fastMemsetZero(out, outSize);
    std::string rest;
    rest.reserve(text.size());
    for (char c : text) {
        rest += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    size_t pos = 0;
    while (count < outSize && pos < rest.size()) {
        if (rest.size() - pos == 1) {
            return false;
        }
        if (!isHexDigit(rest[pos])) {
            ++pos; // any separator is accepted
            continue;
        }
        if (!isHexDigit(rest[pos + 1])) {
            return false; // a lone digit before a separator
        }
        out[count++] = static_cast<unsigned char>(hexValue(rest[pos]) * 16 + hexValue(rest[pos + 1]));
        pos += 2;
    }
    for (; pos < rest.size(); ++pos) {
        if (isHexDigit(rest[pos])) {
            return false;
        }
    }
    return true;
}

// Deliberately gives an empty text, not the text itself, when no quoting is
// needed: callers use it only where a blank is known to stand.
std::string PBase::addQuotesIfInternalSpace(const std::string& text)
{
    if (text.find_first_of(" \t") == std::string::npos) {
        return std::string();
    }
    return "\"" + text + "\"";
}

std::string PBase::sizeTextToColumn_Left(unsigned int width, const std::string& text)
{
    std::string column = text;
    if (column.size() < width) {
        column.append(width - column.size(), ' ');
    }
    return column;
}

std::string PBase::sizeTextToColumn(unsigned int width, const std::string& text)
{
    if (text.size() <= width) {
        return std::string(width - text.size(), ' ') + text;
    }
    if (text.size() < 4) {
        return std::string(width, '*');
    }
    size_t keep = width > 3 ? width - 3 : 0;
    return std::string(width - keep, '.') + text.substr(text.size() - keep);
}

std::string PBase::convertToMByteText(unsigned long long value)
{
    // Callers hand in counts that are 512 times too large once they pass 512.
    unsigned long long v = value < 513 ? value : value >> 9;
    unsigned long long giga = v / kOneGiga;
    if (giga != 0) {
        bool tera = (giga >> 10) != 0;
        std::string text = ui64NumberToText(tera ? giga >> 10 : giga);
        unsigned long long rem = v % kOneGiga;
        if (rem != 0) {
            // The padding here is "000" whatever the fraction is; reports
            // have always shown it that way.
            unsigned long long thousandths = rem * 1000 / kOneGiga;
            text += ".000" + ui64NumberToText(tera ? thousandths >> 10 : thousandths);
        }
        return text + (tera ? "TB" : "GB");
    }
    if ((v >> 20) != 0) {
        std::string text = ui64NumberToText(v >> 20);
        unsigned long long rem = v & 0xFFFFF;
        if (rem != 0) {
            appendThousandths(text, rem, 20);
        }
        return text + "MB";
    }
    if ((v >> 10) != 0) {
        std::string text = ui64NumberToText(v >> 10);
        unsigned long long rem = v & 0x3FF;
        if (rem != 0) {
            appendThousandths(text, rem, 10);
        }
        return text + "KB";
    }
    return ui64NumberToText(v);
}

std::string PBase::longlongToMByteText(unsigned long long value)
{
    // Rounds to the nearest kilobyte, no further.
    unsigned long long v = value > 1048576 ? value + 512 : value;
    unsigned long long bytes = v & 0x3FF;
    unsigned long long kilo = (v >> 10) & 0x3FF;
    unsigned long long mega = (v >> 20) & 0x3FF;
    unsigned long long giga = (v >> 30) & 0x3FF;
    unsigned long long tera = v >> 40;

    unsigned long long whole;
    unsigned long long next;
    const char* unit;
    if (tera != 0) {
        whole = tera, next = giga, unit = "TB";
    } else if (giga != 0) {
        whole = giga, next = mega, unit = "GB";
    } else if (mega != 0) {
        whole = mega, next = kilo, unit = "MB";
    } else if (kilo != 0) {
        whole = kilo, next = bytes, unit = "KB";
    } else {
        return bytes == 0 ? numberToText(0) : numberToText(static_cast<int>(bytes)) + "Bytes";
    }
    std::string text = numberToText(static_cast<int>(whole));
    if (next > 102) {
        text += '.';
        text += numberToText(static_cast<int>((next * 100) >> 10));
    }
    return text + unit;
}

std::string PBase::displayElapsedTime(unsigned int tenthsOfMs)
{
    unsigned int ms = tenthsOfMs / 10;
    unsigned int millis = ms % 1000;
    unsigned int seconds = (ms / 1000) % 60;
    unsigned int minutes = (ms / 60000) % 60;
    unsigned int hours = (ms / 3600000) % 24;
    unsigned int days = ms / 86400000;

    std::string text;
    if (days > 0) {
        text = formatted("%u", days) + " Days, ";
    }
    if (hours > 0) {
        return text + formatted("%02u:%02u:%02u", hours, minutes, seconds);
    }
    if (minutes > 0) {
        return text + formatted("%02u:%02u", minutes, seconds);
    }
    if (seconds > 9) {
        return text + formatted("%u  sec", seconds);
    }
    if (seconds > 0) {
        return text + formatted("%u.%u  sec", seconds, millis / 100);
    }
    if (millis > 99) {
        return text + formatted("%u ms", millis);
    }
    if (millis > 9) {
        return text + formatted(" %u ms", millis);
    }
    if (millis < 1) {
        return text + " <1 ms";
    }
    return text + formatted("  %u ms", millis);
}

std::string PBase::displayMemory(const void* memory, unsigned int length)
{
    std::string text;
    const auto* bytes = static_cast<const unsigned char*>(memory);
    for (unsigned int line = 0; line < length; line += 16) {
        text += formatted("%lu ", static_cast<unsigned long>(reinterpret_cast<uintptr_t>(bytes + line)));
        for (unsigned int i = line; i < length && i < line + 16; ++i) {
            text += byteToHexText(bytes[i]) + " ";
        }
        text += "\n";
    }
    return text;
}

namespace {

// Looks a value up in a table indexed from `first`; values outside it take
// `other`.
std::string tableText(int value, int first, const char* const* texts, int count, const char* other)
{
    if (value < first || value >= first + count) {
        return other;
    }
    return texts[value - first];
}

template <int N>
std::string tableText(int value, int first, const char* const (&texts)[N], const char* other)
{
    return tableText(value, first, texts, N, other);
}

} // namespace

std::string PBase::fcLinkRateToText(FC_LINK_RATE rate)
{
    static const char* const texts[] = {"Auto", "2Gb", "4Gb", "8Gb", "10Gb", "16Gb"};
    return tableText(rate, 0, texts, "Unknown");
}

std::string PBase::iscsiLinkRateToText(ISCSI_LINK_RATE rate)
{
    static const char* const texts[] = {"Unknown", "Auto", "10Mb", "100Mb", "1Gb", "10Gb"};
    return tableText(rate, 0, texts, "Unknown");
}

std::string PBase::linkStatusToText(LINK_STATUS status)
{
    static const char* const texts[] = {"LINK_DOWN", "LINK_UP"};
    return tableText(status, 0, texts, "Unknown");
}

std::string PBase::portStatusToText(PORT_STATUS status)
{
    static const char* const texts[] = {"PORT_DISABLED", "PORT_ENABLED"};
    return tableText(status, 0, texts, "Unknown");
}

std::string PBase::protocolTypeToText(PROTOCOL_TYPE type)
{
    static const char* const texts[] = {"Fibre Channel", "iSCSI", "Data Migration Fibre Channel",
                                        "Data Migration iSCSI"};
    return tableText(type, 1, texts, "Unknown protocol type (uninitialized)");
}

std::string PBase::lunAccessTypeToText(LUN_ACCESS_TYPE type)
{
    static const char* const texts[] = {"Read-Only", "Read/Write", "Exclusive Read/Write"};
    return tableText(type, 1, texts, "Unknown LUN access type (uninitialized)");
}

std::string PBase::lunNameTypeToText(LUN_NAME_TYPE type)
{
    static const char* const texts[] = {"WWULN", "serial number", "T10 designator", "EUI designator", "NAA designator"};
    return tableText(type, 1, texts, "??? ");
}

std::string PBase::severityTypeToText(LOG_ENTRY_SEVERITY_TYPE severity)
{
    // Seven characters wide so that log columns line up.
    static const char* const texts[] = {"UNKNOWN", "  ERROR", "WARNING", "   INFO", "  TRACE"};
    return tableText(severity, 0, texts, "Unknown");
}

std::string PBase::vpGroupIndexToText(VPGROUP_INDEX index)
{
    static const char* const texts[] = {"(No VP Group)", "1st VP Group", "2nd VP Group", "3rd VP Group",
                                        "4th VP Group"};
    return tableText(index, 0, texts, "VP Group unknown");
}

std::string PBase::fcZoneStatusToText(FCZONESET_STATUS_TYPE status)
{
    static const char* const texts[] = {
        "Zone information is valid in this MFcZoneSet",
        "Link down -- cannot retrieve zone information",
        "Cannot connect to a switch",
        "No active zoneset",
        "No matching zone",
        "Timed out attempting to retrieve zone information from switch",
        "Failed to retrieve zone information from switch",
    };
    return tableText(status, 1, texts, "FibreChannel zone set status unknown");
}

std::string PBase::osTypeToText(OS_TYPE type)
{
    static const char* const texts[] = {
        "Unknown OS Type",
        "Microsoft Windows Server 2003",
        "Linux",
        "Linux",
        "HPUX",
        "AIX",
        "NetWare",
        "Sun Solaris",
        "Apple Macintosh",
        "VMWARE",
        "Hewlett-Packard OpenVMS",
        "\"Other\" OS Type",
        "Microsoft Windows Server 2008",
        "Microsoft Windows Server 2012",
    };
    return tableText(type, 0, texts, "Unknown OS Type");
}

std::string PBase::tcpWindowSizeToText(TCPWINDOWSIZE_TYPE size)
{
    if (isValidTcpWindowSize(size)) {
        return "TCPWINDOWSIZE_" + numberToText(size);
    }
    return numberToText(size) + ", (Not a valid value -- must be a power of 2)";
}
