#include "PayloadDecoder.h"

#include <cstdint>
#include <cstring>

#include "RecordLayout.h"

namespace {

// Between record types of one size, the one that this item delivers.
struct ItemRecord {
    char const* item;
    char const* record;
};
constexpr ItemRecord kItemRecords[] = {
    {"target", "KTargetInfo"},
    {"target", "PTargetID"},
    {"health", "KAdapterHealthInfo"},
    {"device", "KDeviceInfo"},
    {"device", "KDeviceID"},
    {"cluster", "KClusterInfo"},
    {"initiator", "KInitiatorInfo"},
    {"initiator", "PInitiatorID"},
    {"lun", "PLunID"},
    {"drive", "KDriveID"},
    {"pool", "KDrivePoolID"},
    {"host", "KHostInfo"},
    {"log", "KLogEntry"},
    {"range", "KLogicalBlockRange"},
    {"version", "KLibraryVersionInfo"},
    {"sfp", "KSfpInfo"},
    {"fc", "KFcInfo"},
};

constexpr uint32_t kCountedHeaderSize = 8;

uint32_t wordAt(unsigned char const* at)
{
    uint32_t value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

std::vector<RecordLayout const*> layoutsOfSize(size_t size)
{
    std::vector<RecordLayout const*> found;
    for (RecordLayout const* layout : allLayouts())
        if (layout->size == size)
            found.push_back(layout);
    return found;
}

RecordLayout const* layoutFor(std::string const& item, size_t size, std::vector<RecordLayout const*>& candidates)
{
    candidates = layoutsOfSize(size);
    if (candidates.size() == 1)
        return candidates.front();
    for (ItemRecord const& hint : kItemRecords)
        if (item == hint.item)
            for (RecordLayout const* layout : candidates)
                if (std::string(layout->name) == hint.record)
                    return layout;
    return nullptr;
}

DecodedValue unknownImage(unsigned char const* image, size_t size, std::vector<RecordLayout const*> const& candidates)
{
    DecodedValue value;
    value.members.emplace_back("record", DecodedValue::text("unknown"));
    value.members.emplace_back("size", DecodedValue::number(std::to_string(size)));
    if (!candidates.empty()) {
        DecodedValue names{DecodedValue::List, {}, {}, {}};
        for (RecordLayout const* layout : candidates)
            names.items.push_back(DecodedValue::text(layout->name));
        value.members.emplace_back("candidates", names);
    }
    value.members.emplace_back("bytes", hexBytes(image, size));
    return value;
}

DecodedValue decodeImage(std::string const& item, unsigned char const* image, size_t size)
{
    std::vector<RecordLayout const*> candidates;
    RecordLayout const* const layout = layoutFor(item, size, candidates);
    if (!layout)
        return unknownImage(image, size, candidates);
    DecodedValue value;
    value.members.emplace_back("record", DecodedValue::text(layout->name));
    value.members.emplace_back("fields", decodeRecord(*layout, image));
    return value;
}

// The images of a counted block, or false when the bytes are not one: the
// header must give its own size and the sizes must fill the payload exactly.
bool countedImages(std::vector<unsigned char> const& payload, std::vector<std::pair<size_t, size_t>>& images)
{
    if (payload.size() < kCountedHeaderSize || wordAt(payload.data()) != kCountedHeaderSize)
        return false;
    uint32_t const count = wordAt(payload.data() + 4);
    size_t at = kCountedHeaderSize;
    for (uint32_t i = 0; i < count; ++i) {
        if (payload.size() - at < 4)
            return false;
        uint32_t const withSizeWord = wordAt(payload.data() + at);
        if (withSizeWord < 4 || withSizeWord - 4 > payload.size() - at - 4)
            return false;
        images.emplace_back(at + 4, withSizeWord - 4);
        at += withSizeWord;
    }
    return at == payload.size();
}

} // namespace

DecodedValue decodePayload(std::string const& item, std::vector<unsigned char> const& payload)
{
    DecodedValue result;
    DecodedValue records{DecodedValue::List, {}, {}, {}};
    std::vector<std::pair<size_t, size_t>> images;
    bool const counted = countedImages(payload, images);
    if (counted) {
        for (auto const& [offset, size] : images)
            records.items.push_back(decodeImage(item, payload.data() + offset, size));
    } else {
        records.items.push_back(decodeImage(item, payload.data(), payload.size()));
    }
    result.members.emplace_back("framing", DecodedValue::text(counted ? "counted" : "single"));
    result.members.emplace_back("records", records);
    return result;
}
