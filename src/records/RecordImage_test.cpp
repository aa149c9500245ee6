#include "records/RecordImage.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KAdapterHealthInfo.h"
#include "records/KCacheStatistics.h"
#include "records/KClusterInfo.h"
#include "records/KDeviceInfo.h"
#include "records/KDriveInfo.h"
#include "records/KFcInfo.h"
#include "records/KHostInfo.h"
#include "records/KHostPcieInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/KLibraryVersionInfo.h"
#include "records/KLogEntry.h"
#include "records/KLogicalBlockRange.h"
#include "records/KLunCacheInfo.h"
#include "records/KLunCacheStatistics.h"
#include "records/KLunInfo.h"
#include "records/KLunIoStatistics.h"
#include "records/KLunPathInfo.h"
#include "records/KLunReservationInfo.h"
#include "records/KManagementSession.h"
#include "records/KMemoryInfo.h"
#include "records/KNvdimmInfo.h"
#include "records/KPoolInfo.h"
#include "records/KSfpInfo.h"
#include "records/KSmartDriveInfo.h"
#include "records/KSsdLunInfo.h"
#include "records/KTargetInfo.h"
#include "records/KVitalProductData.h"
#include "records/PElapsedTime.h"
#include "records/PIpAddress.h"
#include "records/PTime.h"
#include "records/PUniqueID.h"

namespace {

// True when an aligned word of `bytes` points into code or data that the
// process has loaded: what a virtual-table pointer does.
bool holdsALoadedAddress(unsigned char const* bytes, size_t size)
{
    for (size_t at = 0; at + sizeof(void*) <= size; at += sizeof(void*)) {
        void* word = nullptr;
        std::memcpy(&word, bytes + at, sizeof word);
        Dl_info info{};
        if (word && dladdr(word, &info) != 0)
            return true;
    }
    return false;
}

// A record built in memory full of `fill`, as a record on a used stack is.
template <typename Record>
class RecordOnDirtyMemory {
public:
    explicit RecordOnDirtyMemory(unsigned char fill)
    {
        std::memset(storage, fill, sizeof storage);
        record = new (storage) Record;
    }
    ~RecordOnDirtyMemory() { record->~Record(); }
    RecordOnDirtyMemory(RecordOnDirtyMemory const&) = delete;
    RecordOnDirtyMemory& operator=(RecordOnDirtyMemory const&) = delete;

    alignas(Record) unsigned char storage[sizeof(Record)];
    Record* record = nullptr;
};

} // namespace

template <typename Record>
class EveryRecordImage : public ::testing::Test {};

using Records =
    ::testing::Types<KAdapterGroupExtendedLunInfo, KAdapterHealthInfo, KAdapterHealthPciExpressInfo, KCacheStatistics,
                     KClusterInfo, KDeviceInfo, KDriveInfo, KFcInfo, KLinuxHostInfo, KWindowsHostInfo, KHostInfo,
                     KHostPcieInfo, KFcInitiatorInfo, KIscsiInitiatorInfo, KInitiatorInfo, KIsaAdapterInfo,
                     KIsaAdapterPath, KLibraryVersionInfo, KLogEntry, KLogicalBlockRange, KLunCacheInfo,
                     KLunCacheStatistics, KLunInfo, KLunIoStatistics, KFcLunPathInfo, KIscsiLunPathInfo, KLunPathInfo,
                     KLunReservationInfo, KManagementSession, KMemoryInfo, KNvdimmInfo, KPoolInfo, KSfpInfo,
                     KSmartDriveAttribute, KSmartDriveInfo, KSsdLunInfo, KFcTargetInfo, KIscsiTargetInfo, KTargetInfo,
                     KVitalProductData, PElapsedTime, PIpAddress, PTime, PTargetID, PInitiatorID, PLunID, PLunMaskID,
                     KClusterID, KDeviceID, KDriveID, KDrivePoolID, KWwulnLunID>;
TYPED_TEST_SUITE(EveryRecordImage, Records);

TYPED_TEST(EveryRecordImage, HasTheRecordsSizeAndNoCodeAddress)
{
    TypeParam const record;
    unsigned char raw[sizeof record];
    std::memcpy(raw, static_cast<void const*>(&record), sizeof raw);
    ASSERT_TRUE(holdsALoadedAddress(raw, sizeof raw)) << "the check must see the record's own code address";

    std::vector<unsigned char> const image = recordImage(record);
    ASSERT_EQ(image.size(), sizeof(TypeParam));
    EXPECT_FALSE(holdsALoadedAddress(image.data(), image.size()));
}

TYPED_TEST(EveryRecordImage, IsTheSameWhateverTheMemoryHeldBefore)
{
    RecordOnDirtyMemory<TypeParam> const ones(0xFF);
    RecordOnDirtyMemory<TypeParam> const fives(0x55);
    EXPECT_EQ(recordImage(*ones.record), recordImage(*fives.record));
}

TEST(RecordImage, KeepsTheFieldsAndClearsTheTailPadding)
{
    RecordOnDirtyMemory<KMemoryInfo> memory(0xAA);
    memory.record->physicalTotal = 4096;
    memory.record->controlBlocksFree = 17;
    std::vector<unsigned char> const image = recordImage(*memory.record);
    ASSERT_EQ(image.size(), 72u);
    std::vector<unsigned char> const fields(image.begin() + 8, image.begin() + 68);
    std::vector<unsigned char> const original(memory.storage + 8, memory.storage + 68);
    EXPECT_EQ(fields, original);
    EXPECT_EQ(std::vector<unsigned char>(image.begin(), image.begin() + 8), std::vector<unsigned char>(8, 0));
    EXPECT_EQ(std::vector<unsigned char>(image.begin() + 68, image.end()), std::vector<unsigned char>(4, 0));
    EXPECT_EQ(memory.storage[68], 0xAA) << "the test needs padding the record did not clear";
}

TEST(RecordImage, ClearsTheCodeAddressOfEachHeldRecord)
{
    RecordOnDirtyMemory<PLunID> zeroed(0x00);
    PLunID& lun = *zeroed.record;
    lun.initLunIdOnFcTargetFromString("5006-0160-3BE0-1234", 7, PBase::VPGROUP_1);
    std::vector<unsigned char> const image = recordImage(lun);
    size_t const target =
        reinterpret_cast<unsigned char const*>(&lun.targetID()) - reinterpret_cast<unsigned char const*>(&lun);
    EXPECT_EQ(std::vector<unsigned char>(image.begin() + target, image.begin() + target + 8),
              std::vector<unsigned char>(8, 0));
    unsigned char const* const raw = reinterpret_cast<unsigned char const*>(&lun);
    EXPECT_EQ(0, std::memcmp(image.data() + 8, raw + 8, target - 8));
    EXPECT_EQ(0, std::memcmp(image.data() + target + 8, raw + target + 8, sizeof lun - target - 8));
}

TYPED_TEST(EveryRecordImage, LeavesNothingButPaddingUnwrittenByConstruction)
{
    // Padding fills at most the gap to the next aligned field; a longer run
    // would be a field that init() forgets, which the image would lose.
    std::vector<size_t> const& padding = paddingOf<TypeParam>();
    size_t run = 0;
    for (size_t i = 0; i < padding.size(); ++i) {
        run = i > 0 && padding[i] == padding[i - 1] + 1 ? run + 1 : 1;
        EXPECT_LT(run, alignof(TypeParam)) << "at byte " << padding[i];
    }
}
