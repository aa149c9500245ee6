#include "records/KLunCacheInfo.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

// Write-back with a mirror on a peer, a profile, size windows and two
// locked ranges.
KLunCacheInfo mirroredCache()
{
    KLunCacheInfo info;
    info.bValid = true;
    info.eCacheMode = KLunCacheInfo::CACHE_MODE_READ_WRITE_BACK;
    info.eProfileType = KLunCacheInfo::CACHE_PROFILE_WAREHOUSING;
    info.bMirrored = true;
    info.ui64MirrorAdapter = 0x1234ABCD;
    info.ui16MirrorState = 0x101;
    info.eMirrorFlag = KLunCacheInfo::MIRROR_CACHE_PEER_DONE;
    info.ui32MinRead = 1;
    info.ui32MaxRead = 2048;
    info.ui32MinWrite = 8;
    info.ui32MaxWrite = 512;
    info.ui32LockedRangeCount = 2;
    info.lockedRanges[0].ui64StartLba = 100;
    info.lockedRanges[0].ui32Size = 50;
    info.lockedRanges[1].ui64StartLba = 4096;
    info.lockedRanges[1].ui32Size = 8;
    return info;
}

const std::string kMirroredHead = "        Mode: Read_Write_Back (mirrored at adapter 1234ABCD)\n"
                                  "        Mirror State:  0x101 (Configured, In Synchrony)\n"
                                  "        Mirror Flag: Peer Mirror Cache Done\n"
                                  "        Profile Type: Warehousing\n";

} // namespace

TEST(KLunCacheInfo, FullTextWithLimitsAndLockedRanges)
{
    const KLunCacheInfo info = mirroredCache();
    EXPECT_EQ(info.displayText(true),
              kMirroredHead +
                  "        (Cache usage for this LUN is not limited)\n"
                  "        Reads with size  0 KB to 1024 KB will be cached\n"
                  "        Writes with size 4 KB to 256 KB will be cached\n"
                  "    (LBA ranges are specified in 512 byte logical blocks)\n"
                  "    LBA ranges locked in cache:\n"
                  "        -lun_start_lba=100 -lun_size_lba=50\n"
                  "        -lun_start_lba=4096 -lun_size_lba=8\n");
}

TEST(KLunCacheInfo, WithoutLimitsTheTextStopsAfterTheProfile)
{
    const KLunCacheInfo info = mirroredCache();
    EXPECT_EQ(info.displayText(false), kMirroredHead);
    EXPECT_EQ(info.displayText(), kMirroredHead);
}

TEST(KLunCacheInfo, MinReadOfOneBlockShowsAsZeroKilobytes)
{
    KLunCacheInfo info;
    info.ui32MinRead = 1;
    info.ui32MaxRead = 3;
    EXPECT_NE(info.displayText(true).find("        Reads with size  0 KB to 1 KB will be cached\n"), std::string::npos);
}

TEST(KLunCacheInfo, LimitedCacheUse)
{
    KLunCacheInfo info;
    info.eCacheMode = KLunCacheInfo::CACHE_MODE_READ_ONLY;
    info.ui64MaxCacheBytes = 10485760;
    EXPECT_EQ(info.displayText(true),
              "        Mode: Read_Only\n"
              "        Cache usage for this LUN is limited to 10MB\n"
              "        Reads with size  0 KB to 0 KB will be cached\n"
              "        Writes with size 0 KB to 0 KB will be cached\n");
}

TEST(KLunCacheInfo, MirrorWithStateZeroShowsOnlyTheNumber)
{
    KLunCacheInfo info = mirroredCache();
    info.ui16MirrorState = 0;
    EXPECT_EQ(info.displayText(false),
              "        Mode: Read_Write_Back (mirrored at adapter 1234ABCD)\n"
              "        Mirror State:  0x0\n"
              "        Profile Type: Warehousing\n");
}

TEST(KLunCacheInfo, NoModeAndNoProfileGiveNoHeadLines)
{
    KLunCacheInfo info = mirroredCache();
    info.eCacheMode = KLunCacheInfo::CACHE_MODE_NONE;
    info.eProfileType = KLunCacheInfo::CACHE_PROFILE_UNKNOWN;
    EXPECT_EQ(info.displayText(false), "");
}

TEST(KLunCacheInfo, DamagedRangeCountShowsAtMostTheTable)
{
    KLunCacheInfo info;
    info.ui32LockedRangeCount = 1000;
    const std::string text = info.displayText(true);
    size_t lines = 0;
    for (size_t at = text.find("-lun_start_lba="); at != std::string::npos; at = text.find("-lun_start_lba=", at + 1))
        ++lines;
    EXPECT_EQ(lines, 16u);
}

TEST(KLunCacheInfo, MirrorLunTextIsEmptyWithoutMirrorState)
{
    KLunCacheInfo info = mirroredCache();
    info.ui16MirrorState = 0;
    EXPECT_EQ(info.displayMirrorLunText(), "");
}

TEST(KLunCacheInfo, MirrorLunTextEndsWithoutNewLine)
{
    KLunCacheInfo info = mirroredCache();
    info.eMirrorFlag = KLunCacheInfo::MIRROR_CACHE_RESYNC_IN_PROGRESS;
    info.ui64MirrorDirtyCacheBytes = 5242880;
    EXPECT_EQ(info.displayMirrorLunText(),
              "        Mirror State:  0x101 (Configured, In Synchrony)\n"
              "        Mirror Flag: Mirror Cache Re-Synchrony in Progress"
              "\n        Mirror LUN Dirty Cache Capacity Used: 5MB");
}

TEST(KLunCacheInfo, MirrorStatePredicate)
{
    const KLunCacheInfo info = mirroredCache();
    EXPECT_TRUE(info.isMirrorState(KLunCacheInfo::MIRROR_STATE_CONFIGURED));
    EXPECT_TRUE(info.isMirrorState(KLunCacheInfo::MIRROR_STATE_IN_SYNCHRONY));
    EXPECT_FALSE(info.isMirrorState(KLunCacheInfo::MIRROR_STATE_FAILOVER));
    EXPECT_FALSE(info.isMirrorState(16));
    EXPECT_TRUE(info.isValid());
}

TEST(KLunCacheInfo, CacheModeTexts)
{
    using M = KLunCacheInfo::CACHE_MODE;
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(0)), "    ****\n");
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(1)), "Read_Write_Through");
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(2)), "Read_Write_Back");
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(3)), "Read_Only");
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(4)), "Write_Through_Only");
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(5)), "Write_Back_Only");
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(6)), "Purge_In_Progress");
    EXPECT_EQ(KLunCacheInfo::lunCacheModeToText(M(7)), "    ****\n");
}

TEST(KLunCacheInfo, ProfileTexts)
{
    using P = KLunCacheInfo::CACHE_PROFILE_TYPE;
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(0)), "    ****\n");
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(1)), "Default");
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(2)), "ERP");
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(3)), "Warehousing");
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(4)), "Exchange");
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(5)), "Media Server");
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(6)), "Vendor Specific");
    EXPECT_EQ(KLunCacheInfo::lunCacheProfileTypeToText(P(7)), "    ****\n");
}

TEST(KLunCacheInfo, MirrorStateBitTexts)
{
    const char* expected[16] = {
        "Configured", "Unused 1",      "Unused 2",        "Unused 3",         "Soft Failure",
        "Unused 4",   "Unused 5",      "Unused 6",        "In Synchrony",     "In Transition",
        "Failover",   "Failover Done", "Wait for Rebind", "Resync on Bootup", "Peer in Factory Default Mode",
        "Unused 7",
    };
    for (int bit = 0; bit < 16; ++bit)
        EXPECT_EQ(KLunCacheInfo::mirrorStateToText(99, bit), expected[bit]) << "bit " << bit;
    EXPECT_EQ(KLunCacheInfo::mirrorStateToText(0, 16), "");
    EXPECT_EQ(KLunCacheInfo::mirrorStateToText(0, -1), "");
}

TEST(KLunCacheInfo, MirrorFlagTexts)
{
    using F = KLunCacheInfo::MIRROR_CACHE_FLAG;
    EXPECT_EQ(KLunCacheInfo::mirrorFlagToText(F(0)), "");
    EXPECT_EQ(KLunCacheInfo::mirrorFlagToText(F(1)), "Mirror Cache Re-Synchrony in Progress");
    EXPECT_EQ(KLunCacheInfo::mirrorFlagToText(F(2)), "Mirror Cache Re-Synchrony Done");
    EXPECT_EQ(KLunCacheInfo::mirrorFlagToText(F(3)), "Peer Mirror Cache in Progress");
    EXPECT_EQ(KLunCacheInfo::mirrorFlagToText(F(4)), "Peer Mirror Cache Done");
    EXPECT_EQ(KLunCacheInfo::mirrorFlagToText(F(5)), "");
}

TEST(KLunCacheInfo, CsvTitle)
{
    EXPECT_EQ(KLunCacheInfo::displayCSVTitle(),
              "Cache Mode, Max Cache (Bytes), Max Read Size to be Cached, Min Read Size to be Cached, Max Write "
              "Size to be Cached, Min Write Size to be Cached, Number of Locked Range");
}

TEST(KLunCacheInfo, SavedImageIsScalarsThenEachRange)
{
    KLunCacheInfo info = mirroredCache();
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    std::string err;
    ASSERT_TRUE(info.serialize(true, f, err));
    EXPECT_EQ(ftell(f), 76 + 16 * 16);
    rewind(f);
    KLunCacheInfo back;
    ASSERT_TRUE(back.serialize(false, f, err));
    EXPECT_EQ(back.displayText(true), info.displayText(true));
    fclose(f);
}

TEST(KLunCacheInfo, CopyAndInit)
{
    KLunCacheInfo info = mirroredCache();
    KLunCacheInfo copy;
    copy = info;
    EXPECT_EQ(copy.displayText(true), info.displayText(true));
    copy.init();
    EXPECT_FALSE(copy.bValid);
    EXPECT_EQ(copy.lockedRanges[1].ui64StartLba, 0u);
    EXPECT_EQ(copy.getSerialOffset(), 20u);
}
