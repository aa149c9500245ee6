#include "ResultFile.h"

#include <cstring>

namespace {

// The header names 32 bytes, but 36 stand ahead of the payload section.
constexpr uint32_t kAnnouncedHeaderSize = 32;
constexpr size_t kFixedPart = 36;
constexpr size_t kWord = 4;

uint32_t wordAt(std::vector<unsigned char> const& bytes, size_t at)
{
    uint32_t value = static_cast<uint32_t>(bytes[at]) | static_cast<uint32_t>(bytes[at + 1]) << 8 |
        static_cast<uint32_t>(bytes[at + 2]) << 16 | static_cast<uint32_t>(bytes[at + 3]) << 24;
    return value;
}

std::string at(size_t offset)
{
    return " at byte " + std::to_string(offset);
}

// One record from `start`; its end in `next`.
bool parseRecord(std::vector<unsigned char> const& bytes, size_t start, ResultRecord& record, size_t& next,
                 std::string& err)
{
    // A foreign file is told by its first word, however short it is.
    size_t const left = bytes.size() - start;
    if (left >= kWord && wordAt(bytes, start) != kAnnouncedHeaderSize) {
        err = "not a result record" + at(start) + ": header size " + std::to_string(wordAt(bytes, start)) +
            ", expected " + std::to_string(kAnnouncedHeaderSize);
        return false;
    }
    if (left < kFixedPart + kWord) {
        err = "record cut short" + at(start) + ": " + std::to_string(left) + " bytes left, a record has at least " +
            std::to_string(kFixedPart + kWord);
        return false;
    }
    record.offset = start;
    for (size_t i = 0; i < 4; ++i)
        record.apiVersion[i] = wordAt(bytes, start + 8 + i * kWord);
    record.action = static_cast<int32_t>(wordAt(bytes, start + 24));
    record.item = static_cast<int32_t>(wordAt(bytes, start + 28));
    record.status = static_cast<int32_t>(wordAt(bytes, start + 32));
    size_t const section = start + kFixedPart;
    uint32_t const sectionLength = wordAt(bytes, section);
    if (sectionLength == 0) {
        next = section + kWord;
        return true;
    }
    // A section counts its own length word; its payload is followed by the
    // terminating zero word.
    if (sectionLength < kWord || sectionLength - kWord > bytes.size() - section - kWord ||
        bytes.size() - section - sectionLength < kWord) {
        err = "payload section of " + std::to_string(sectionLength) + " bytes" + at(section) +
            " runs past the end of the file (" + std::to_string(bytes.size()) + " bytes)";
        return false;
    }
    record.payload.assign(bytes.begin() + static_cast<long>(section + kWord),
                          bytes.begin() + static_cast<long>(section + sectionLength));
    size_t const terminator = section + sectionLength;
    if (wordAt(bytes, terminator) != 0) {
        err = "record not terminated by a zero word" + at(terminator);
        return false;
    }
    next = terminator + kWord;
    return true;
}

} // namespace

bool parseResultFile(std::vector<unsigned char> const& bytes, std::vector<ResultRecord>& records, std::string& err)
{
    records.clear();
    if (bytes.empty()) {
        err = "the file is empty";
        return false;
    }
    size_t start = 0;
    while (start < bytes.size()) {
        ResultRecord record;
        size_t next = start;
        if (!parseRecord(bytes, start, record, next, err))
            return false;
        records.push_back(std::move(record));
        start = next;
    }
    return true;
}
