// The counted result block that list and show commands write as their
// result record: an 8-byte header (its own size, then the count of records),
// then per record a 4-byte size that includes itself, and the record's image.
#pragma once

#include <cstdint>
#include <new>
#include <string>
#include <vector>

class TokenCmd;

class CountedRecordBuffer {
public:
    // The header alone, with a count of 0.
    CountedRecordBuffer();

    template <typename Record>
    void appendAll(std::vector<Record> const& records)
    {
        for (Record const& record : records)
            appendImage(&record, sizeof(Record));
    }

    void const* data() const { return bytes.data(); }
    unsigned long size() const { return bytes.size(); }

private:
    void appendImage(void const* image, unsigned int imageSize);
    void appendInt32(uint32_t value);
    void storeInt32(size_t at, uint32_t value);

    std::vector<unsigned char> bytes;
    uint32_t count = 0;
};

int writeCountedBuffer(TokenCmd const& cmd, int code, CountedRecordBuffer const& buffer, std::string& err);
// The result record of a buffer that could not be built: code 55, no data.
int writeResultWithoutData(TokenCmd const& cmd, std::string& err);

// Writes the records as a counted buffer to the result channel. A buffer
// that cannot be allocated makes the result code 55 with no data. Returns
// 0, or 55 when the result could not be written.
template <typename Record>
int writeCountedResult(TokenCmd const& cmd, int code, std::vector<Record> const& records, std::string& err)
{
    try {
        CountedRecordBuffer buffer;
        buffer.appendAll(records);
        return writeCountedBuffer(cmd, code, buffer, err);
    } catch (std::bad_alloc const&) {
        return writeResultWithoutData(cmd, err);
    }
}
