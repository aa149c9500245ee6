// The image is taken into a real object of the class, past its code-address
// slot (which the image leaves blank), and the class itself tells what it
// holds.
#include "ValueLayouts.h"

#include <algorithm>

#include "records/PUniqueID.h"

namespace {

constexpr size_t kCodeAddressSize = sizeof(void*);

template <typename Record>
void takeImage(Record& record, unsigned char const* image)
{
    std::memcpy(reinterpret_cast<unsigned char*>(&record) + kCodeAddressSize, image + kCodeAddressSize,
                sizeof(Record) - kCodeAddressSize);
}

template <typename Id>
DecodedValue decodeIdentifier(unsigned char const* image)
{
    Id id;
    takeImage(id, image);
    DecodedValue value;
    int const length = id.getDataLength();
    size_t const used = length < 0 ? 0 : std::min<size_t>(static_cast<size_t>(length), PUniqueID::DATA_SIZE);
    value.members.emplace_back("idType", DecodedValue::number(std::to_string(id.getIdType())));
    value.members.emplace_back("dataLength", DecodedValue::number(std::to_string(length)));
    value.members.emplace_back("data", hexBytes(id.getData(), used));
    value.members.emplace_back("text", DecodedValue::text(id.displayText()));
    return value;
}

DecodedValue decodeTime(unsigned char const* image)
{
    PTime time;
    takeImage(time, image);
    DecodedValue value;
    value.members.emplace_back("posixTime", DecodedValue::number(std::to_string(time.getPosixTime())));
    value.members.emplace_back("text", DecodedValue::text(time.displayGmtTime()));
    return value;
}

template <typename Record>
DecodedValue decodeByText(unsigned char const* image)
{
    Record record;
    takeImage(record, image);
    DecodedValue value;
    value.members.emplace_back("text", DecodedValue::text(record.displayText()));
    return value;
}

template <typename Record>
RecordLayout makeLayout(char const* name, DecodedValue (*decode)(unsigned char const*))
{
    return RecordLayout{name, sizeof(Record), {}, decode};
}

} // namespace

RecordLayout const& KnownLayout<PTime>::layout()
{
    static RecordLayout const layout = makeLayout<PTime>("PTime", &decodeTime);
    return layout;
}

RecordLayout const& KnownLayout<PIpAddress>::layout()
{
    static RecordLayout const layout = makeLayout<PIpAddress>("PIpAddress", &decodeByText<PIpAddress>);
    return layout;
}

RecordLayout const& KnownLayout<PElapsedTime>::layout()
{
    static RecordLayout const layout = makeLayout<PElapsedTime>("PElapsedTime", &decodeByText<PElapsedTime>);
    return layout;
}

std::vector<RecordLayout const*> const& valueLayouts()
{
    static RecordLayout const lun = makeLayout<PLunID>("PLunID", &decodeIdentifier<PLunID>);
    static RecordLayout const target = makeLayout<PTargetID>("PTargetID", &decodeIdentifier<PTargetID>);
    static RecordLayout const initiator = makeLayout<PInitiatorID>("PInitiatorID", &decodeIdentifier<PInitiatorID>);
    static RecordLayout const device = makeLayout<KDeviceID>("KDeviceID", &decodeIdentifier<KDeviceID>);
    static RecordLayout const drive = makeLayout<KDriveID>("KDriveID", &decodeIdentifier<KDriveID>);
    static RecordLayout const pool = makeLayout<KDrivePoolID>("KDrivePoolID", &decodeIdentifier<KDrivePoolID>);
    static std::vector<RecordLayout const*> const layouts{
        &lun,
        &target,
        &initiator,
        &device,
        &drive,
        &pool,
        &KnownLayout<PTime>::layout(),
        &KnownLayout<PIpAddress>::layout(),
        &KnownLayout<PElapsedTime>::layout(),
    };
    return layouts;
}
