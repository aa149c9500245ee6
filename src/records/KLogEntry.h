// One record of the adapter's event log, and its 300-byte file form.
#pragma once

#include <cstdio>
#include <string>

#include "records/PBase.h"
#include "records/PTime.h"

// Base of log records: nothing to show, compare or keep.
class KLogEntryBase : public PBase {
public:
    KLogEntryBase();
    KLogEntryBase(const KLogEntryBase& other);
    KLogEntryBase& operator=(const KLogEntryBase& other);
    ~KLogEntryBase() override;

    void init() override;
    std::string displayText() const override;
    virtual bool operator==(const KLogEntryBase& other) const;
    virtual bool operator!=(const KLogEntryBase& other) const;
    // Byte counts written and read.
    virtual size_t save(FILE* file);
    virtual size_t restore(FILE* file);
};

class KLogEntry : public KLogEntryBase {
public:
    // A lower number is worse.
    enum RAW_LOG_ENTRY_SEVERITY_TYPE : int32_t {
        RAW_SEVERITY_UNKNOWN = 0,
        RAW_SEVERITY_FATAL = 1,
        RAW_SEVERITY_ERROR = 2,
        RAW_SEVERITY_WARNING = 3,
        RAW_SEVERITY_TRACE = 4,
        RAW_SEVERITY_INFO = 5,
        RAW_SEVERITY_DEBUG = 6,
        RAW_SEVERITY_SYSTEM = 7,
    };
    static constexpr int SEVERITY_COUNT = 8;

    static constexpr unsigned int SOURCE_SIZE = 32;
    static constexpr unsigned int MESSAGE_SIZE = 256;
    // File form: time, source, severity, message.
    static constexpr size_t SAVED_SIZE = 8 + SOURCE_SIZE + 4 + MESSAGE_SIZE;

    KLogEntry();
    KLogEntry(const KLogEntry& other);
    KLogEntry& operator=(const KLogEntry& other);
    ~KLogEntry() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;
    std::string displayDelimitedText(const std::string& delimiter) const;
    size_t save(FILE* file) override;
    // Takes the record over only when a whole one was read.
    size_t restore(FILE* file) override;

    // Equal in time, severity, source and message; the number does not count.
    using KLogEntryBase::operator==;
    using KLogEntryBase::operator!=;
    bool operator==(const KLogEntry& other) const;
    bool operator!=(const KLogEntry& other) const;

    // Fixed-width severity column of the log listings.
    static std::string rawLogfileSeverityTypeToText(RAW_LOG_ENTRY_SEVERITY_TYPE severity);
    // The word that names a severity on the command line ("fatal", ...);
    // empty outside the table.
    static std::string rawLogfileSeverityTypeToKeyword(RAW_LOG_ENTRY_SEVERITY_TYPE severity);

    bool isValid() const { return untouchedWord != 0; }

    // Whether the message holds `text`, case-sensitively. The message need
    // not be terminated: the search stops at the end of its field.
    bool messageContains(const std::string& text) const;

    // The file form in memory: SAVED_SIZE bytes, as save and restore write
    // and read them, for a reader that takes many records at once.
    void saveTo(unsigned char* record) const;
    void restoreFrom(const unsigned char* record);

    int32_t entryNumber;
    char source[SOURCE_SIZE];
    RAW_LOG_ENTRY_SEVERITY_TYPE severity;
    char message[MESSAGE_SIZE];
    PTime time;

private:
    bool serializeWord(bool write, FILE* file, std::string& error);
};

static_assert(sizeof(KLogEntry) == 352, "KLogEntry image");
