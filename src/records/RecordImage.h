// The image of a record as it leaves the process in a result file.
//
// A record is exchanged by memory image, and its memory holds two things
// that differ from one process to the next: padding that no field covers,
// and the code address (the virtual-table pointer) at the start of the
// record and of every record it holds. The image made here is the record's
// memory with the padding zero-filled and each of those code-address slots
// written as zeros: they mean nothing outside the process. The same record
// therefore gives the same bytes in every run.
//
// Padding is found by building the record twice, over zeros and over ones:
// the bytes that its construction leaves as they were are padding (every
// record's init() writes all of its fields). A record that holds other
// records names them in an overload of eraseCodeAddresses below; one that
// holds none needs nothing. RecordImage_test checks every record type for
// both, so a new record type is added to its list.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include "records/PBase.h"
#include "records/PUniqueID.h"

class KAdapterGroupExtendedLunInfo;
class KAdapterHealthInfo;
class KDeviceInfo;
class KDriveInfo;
class KHostInfo;
class KInitiatorInfo;
class KIsaAdapterInfo;
class KIsaAdapterPath;
class KIscsiLunPathInfo;
class KLogEntry;
class KLunCacheInfo;
class KLunInfo;
class KLunIoStatistics;
class KLunPathInfo;
class KSmartDriveInfo;
class KTargetInfo;
class KVitalProductData;

// Writes zeros over the code-address slot of objects inside one record,
// in the image of that record.
class CodeAddressEraser {
public:
    CodeAddressEraser(void const* record, unsigned char* image) : record(record), image(image) {}
    // `object` lies inside the record: its first pointer-sized bytes go.
    void erase(void const* object);

private:
    void const* record;
    unsigned char* image;
};

// The record's own slot, then those of the records it holds.
void eraseCodeAddresses(CodeAddressEraser& eraser, PBase const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, PUniqueID const& id);
void eraseCodeAddresses(CodeAddressEraser& eraser, PLunID const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, PLunMaskID const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KAdapterGroupExtendedLunInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KAdapterHealthInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KDeviceInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KDriveInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KHostInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KInitiatorInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KIsaAdapterInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KIsaAdapterPath const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KIscsiLunPathInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KLogEntry const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KLunCacheInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KLunInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KLunIoStatistics const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KLunPathInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KSmartDriveInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KTargetInfo const& record);
void eraseCodeAddresses(CodeAddressEraser& eraser, KVitalProductData const& record);

// The memory of a default record built over bytes that all hold `fill`.
template <typename Record>
std::vector<unsigned char> constructedOver(unsigned char fill)
{
    union Storage {
        explicit Storage(unsigned char fill) { std::memset(raw, fill, sizeof raw); }
        ~Storage() {}
        unsigned char raw[sizeof(Record)];
        Record record;
    };
    auto const storage = std::make_unique<Storage>(fill);
    Record* const record = new (&storage->record) Record;
    std::vector<unsigned char> const memory(storage->raw, storage->raw + sizeof(Record));
    record->~Record();
    return memory;
}

// The offsets of the bytes of a record of this type that its construction
// never writes: its padding.
template <typename Record>
std::vector<std::size_t> const& paddingOf()
{
    static std::vector<std::size_t> const padding = [] {
        std::vector<unsigned char> const overZeros = constructedOver<Record>(0x00);
        std::vector<unsigned char> const overOnes = constructedOver<Record>(0xFF);
        std::vector<std::size_t> offsets;
        for (std::size_t at = 0; at < sizeof(Record); ++at)
            if (overZeros[at] != overOnes[at])
                offsets.push_back(at);
        return offsets;
    }();
    return padding;
}

// Appends the image of `record` to `bytes`.
template <typename Record>
void appendRecordImage(std::vector<unsigned char>& bytes, Record const& record)
{
    std::size_t const start = bytes.size();
    bytes.resize(start + sizeof(Record));
    std::memcpy(bytes.data() + start, static_cast<void const*>(&record), sizeof(Record));
    for (std::size_t const at : paddingOf<Record>())
        bytes[start + at] = 0;
    CodeAddressEraser eraser(&record, bytes.data() + start);
    eraseCodeAddresses(eraser, record);
}

// The image of `record` alone.
template <typename Record>
std::vector<unsigned char> recordImage(Record const& record)
{
    std::vector<unsigned char> bytes;
    appendRecordImage(bytes, record);
    return bytes;
}
