// The counted result block that list and show commands write as their
// result record: an 8-byte header (its own size, then the count of records),
// then per record a 4-byte size that includes itself, and the record's image.
#pragma once

#include <cstdint>
#include <new>
#include <string>
#include <vector>

#include "commands/CommandOutput.h"
#include "records/RecordImage.h"

// The bytes of a record that a payload carries: its whole memory image, or
// the shorter image that the record names as PAYLOAD_IMAGE_SIZE.
template <typename Record>
constexpr unsigned int payloadImageSize()
{
    if constexpr (requires { Record::PAYLOAD_IMAGE_SIZE; }) {
        static_assert(Record::PAYLOAD_IMAGE_SIZE <= sizeof(Record), "a payload image is part of the record");
        return Record::PAYLOAD_IMAGE_SIZE;
    } else {
        return sizeof(Record);
    }
}

class CountedRecordBuffer {
public:
    // The header alone, with a count of 0.
    CountedRecordBuffer();

    template <typename Record>
    void appendAll(std::vector<Record> const& records)
    {
        for (Record const& record : records) {
            beginImage(payloadImageSize<Record>());
            appendRecordImage(bytes, record);
            // A record longer than its payload image leaves its tail out.
            bytes.resize(bytes.size() - (sizeof(Record) - payloadImageSize<Record>()));
        }
    }

    // Makes the header state `stated` records whatever the block carries, as
    // the show commands of one object do: they carry that one and state how
    // many the adapter holds.
    void stateCount(uint32_t stated) { storeInt32(kCountOffset, stated); }

    void const* data() const { return bytes.data(); }
    unsigned long size() const { return bytes.size(); }

private:
    static constexpr size_t kCountOffset = 4;

    // The size word of the next image, which is then appended; the count grows.
    void beginImage(unsigned int imageSize);
    void appendInt32(uint32_t value);
    void storeInt32(size_t at, uint32_t value);

    std::vector<unsigned char> bytes;
    uint32_t count = 0;
};

// The result record of a buffer that could not be built: code 55, no data,
// and the output fails.
void writeResultWithoutData(CommandOutput& out);

// Builds a counted buffer with `fill` and writes it as the command's result
// record. A buffer that cannot be allocated gives the result code 55 with no
// data. True while the output is whole.
template <typename Fill>
bool writeBuiltResult(CommandOutput& out, int code, Fill const& fill)
{
    try {
        CountedRecordBuffer buffer;
        fill(buffer);
        return out.result(code, buffer.data(), buffer.size());
    } catch (std::bad_alloc const&) {
        writeResultWithoutData(out);
        return false;
    }
}

// Writes the records as a counted buffer as the command's result record.
template <typename Record>
bool writeCountedResult(CommandOutput& out, int code, std::vector<Record> const& records)
{
    return writeBuiltResult(out, code, [&](CountedRecordBuffer& buffer) { buffer.appendAll(records); });
}

// Writes one record as the command's result record, in a block whose header
// states `stated` records.
template <typename Record>
bool writeOneOfCountedResult(CommandOutput& out, int code, Record const& record, uint32_t stated)
{
    return writeBuiltResult(out, code, [&](CountedRecordBuffer& buffer) {
        buffer.appendAll(std::vector<Record>{record});
        buffer.stateCount(stated);
    });
}
