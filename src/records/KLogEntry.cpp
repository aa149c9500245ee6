#include "records/KLogEntry.h"

#include <cstring>
#include <string_view>

ZEK_ASSERT_FIELD_OFFSET(KLogEntry, entryNumber, 20);
ZEK_ASSERT_FIELD_OFFSET(KLogEntry, message, 60);
ZEK_ASSERT_FIELD_OFFSET(KLogEntry, time, 320);

namespace {

// Places of the fields in the file form.
constexpr size_t kSavedTime = 0;
constexpr size_t kSavedSource = 8;
constexpr size_t kSavedSeverity = 40;
constexpr size_t kSavedMessage = 44;
static_assert(kSavedMessage + KLogEntry::MESSAGE_SIZE == KLogEntry::SAVED_SIZE, "log record file form");

// The serialised body: the valid word, then the fields from the number to
// the end of the message.
constexpr unsigned int kValidWordSize = 4;
constexpr unsigned int kBodySize = 4 + KLogEntry::SOURCE_SIZE + 4 + KLogEntry::MESSAGE_SIZE;
static_assert(kValidWordSize + kBodySize == 300, "serialised log record");

// Texts from the adapter or a file need not be terminated; they end at the
// end of their field.
std::string boundedText(const char* field, size_t size)
{
    return std::string(field, strnlen(field, size));
}

} // namespace

// ---- KLogEntryBase ------------------------------------------------------------

KLogEntryBase::KLogEntryBase() : PBase() {}

KLogEntryBase::KLogEntryBase(const KLogEntryBase&) : PBase() {}

KLogEntryBase& KLogEntryBase::operator=(const KLogEntryBase&)
{
    return *this;
}

KLogEntryBase::~KLogEntryBase() = default;

void KLogEntryBase::init() {}

std::string KLogEntryBase::displayText() const
{
    return std::string();
}

bool KLogEntryBase::operator==(const KLogEntryBase&) const
{
    return true;
}

bool KLogEntryBase::operator!=(const KLogEntryBase&) const
{
    return false;
}

size_t KLogEntryBase::save(FILE*)
{
    return 0;
}

size_t KLogEntryBase::restore(FILE*)
{
    return 0;
}

// ---- KLogEntry ---------------------------------------------------------------------

KLogEntry::KLogEntry() : KLogEntryBase()
{
    init();
}

KLogEntry::KLogEntry(const KLogEntry& other) : KLogEntryBase()
{
    init();
    *this = other;
}

KLogEntry& KLogEntry::operator=(const KLogEntry& other)
{
    if (this != &other) {
        init();
        entryNumber = other.entryNumber;
        fastMemcpy(source, sizeof source, other.source, sizeof source);
        severity = other.severity;
        fastMemcpy(message, sizeof message, other.message, sizeof message);
        time = other.time;
    }
    return *this;
}

KLogEntry::~KLogEntry()
{
    init();
}

void KLogEntry::init()
{
    untouchedWord = 1; // a blank log record is a valid one
    entryNumber = 0;
    fastMemsetZero(source, sizeof source);
    severity = RAW_SEVERITY_UNKNOWN;
    fastMemsetZero(message, sizeof message);
    time.initFromPosixTime(-1);
    initSerialization(&entryNumber, sizeof(KLogEntry));
}

bool KLogEntry::serialize(bool write, FILE* file, std::string& error)
{
    if (!base_serialize(write, file, reinterpret_cast<char*>(&untouchedWord), kValidWordSize, error))
        return false;
    if (!base_serialize(write, file, reinterpret_cast<char*>(&entryNumber), kBodySize, error))
        return false;
    return time.serialize(write, file, error);
}

bool KLogEntry::operator==(const KLogEntry& other) const
{
    return time == other.time && severity == other.severity && strncmp(source, other.source, sizeof source) == 0 &&
        strncmp(message, other.message, sizeof message) == 0;
}

bool KLogEntry::operator!=(const KLogEntry& other) const
{
    return !(*this == other);
}

std::string KLogEntry::rawLogfileSeverityTypeToText(RAW_LOG_ENTRY_SEVERITY_TYPE value)
{
    switch (value) {
    case RAW_SEVERITY_UNKNOWN:
        return "UNKN ";
    case RAW_SEVERITY_FATAL:
        return "FATAL";
    case RAW_SEVERITY_ERROR:
        return "ERROR";
    case RAW_SEVERITY_WARNING:
        return "WARN ";
    case RAW_SEVERITY_TRACE:
        return "TRACE";
    case RAW_SEVERITY_INFO:
        return "INFO ";
    case RAW_SEVERITY_DEBUG:
        return "DEBUG";
    case RAW_SEVERITY_SYSTEM:
        return "SYSTM";
    default:
        return "Unknown";
    }
}

std::string KLogEntry::rawLogfileSeverityTypeToKeyword(RAW_LOG_ENTRY_SEVERITY_TYPE value)
{
    switch (value) {
    case RAW_SEVERITY_UNKNOWN:
        return "unknown";
    case RAW_SEVERITY_FATAL:
        return "fatal";
    case RAW_SEVERITY_ERROR:
        return "error";
    case RAW_SEVERITY_WARNING:
        return "warning";
    case RAW_SEVERITY_TRACE:
        return "trace";
    case RAW_SEVERITY_INFO:
        return "info";
    case RAW_SEVERITY_DEBUG:
        return "debug";
    case RAW_SEVERITY_SYSTEM:
        return "system";
    default:
        return std::string();
    }
}

std::string KLogEntry::displayDelimitedText(const std::string& delimiter) const
{
    std::string text = rawLogfileSeverityTypeToText(severity) + delimiter + time.displayText() + delimiter +
        boundedText(source, sizeof source) + delimiter + boundedText(message, sizeof message);
    if (text.back() != '\n')
        text += "\n";
    return text;
}

bool KLogEntry::messageContains(const std::string& text) const
{
    std::string_view const field(message, strnlen(message, sizeof message));
    return field.find(text) != std::string_view::npos;
}

std::string KLogEntry::displayText() const
{
    return displayDelimitedText(" ");
}

void KLogEntry::saveTo(unsigned char* record) const
{
    int64_t seconds = time.getPosixTime();
    memcpy(record + kSavedTime, &seconds, sizeof seconds);
    memcpy(record + kSavedSource, source, sizeof source);
    memcpy(record + kSavedSeverity, &severity, sizeof severity);
    memcpy(record + kSavedMessage, message, sizeof message);
}

void KLogEntry::restoreFrom(const unsigned char* record)
{
    int64_t seconds;
    memcpy(&seconds, record + kSavedTime, sizeof seconds);
    time.initFromPosixTime(static_cast<long>(seconds));
    memcpy(source, record + kSavedSource, sizeof source);
    memcpy(&severity, record + kSavedSeverity, sizeof severity);
    memcpy(message, record + kSavedMessage, sizeof message);
}

size_t KLogEntry::save(FILE* file)
{
    if (file == nullptr)
        return 0;
    unsigned char record[SAVED_SIZE];
    saveTo(record);
    return fwrite(record, 1, sizeof record, file);
}

size_t KLogEntry::restore(FILE* file)
{
    if (file == nullptr)
        return 0;
    unsigned char record[SAVED_SIZE];
    size_t count = fread(record, 1, sizeof record, file);
    if (count == sizeof record) {
        init();
        restoreFrom(record);
    }
    return count;
}
