#include "records/KLunInfo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

namespace {

template <class T>
bool roundTrip(T& in, T& out, std::string& err)
{
    FILE* f = tmpfile();
    const bool ok = f && in.serialize(true, f, err) && (rewind(f), out.serialize(false, f, err));
    if (f)
        fclose(f);
    return ok;
}

// An online direct-access SAN LUN with inquiry data and a binary WWULN.
KLunInfo sanLun()
{
    KLunInfo info;
    info.bValid = true;
    info.ui64LunSizeBytes = 1073741824ULL;
    info.m_eLunType = KLunInfo::LUN_TYPE_DIRECT_ACCESS;
    info.m_eCacheState = KLunInfo::CACHE_STATE_NOT_CACHED;
    info.m_eMirrorState = KLunInfo::MIRROR_STATE_NOT_MIRRORED;
    strcpy(info.szVendorId, "ACME");
    strcpy(info.szProductId, "FastDisk");
    strcpy(info.szRevisionLevel, "0001");
    const uint8_t serial[8] = {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF};
    memcpy(info.ui8SerialNumber, serial, sizeof(serial));
    info.ui32LunState = 0x200801;
    info.eWwulnCodeSet = PBase::WWULN_CODE_SET_BINARY;
    info.ui32WwulnLength = 3;
    info.ui8Wwuln[0] = 0xAA;
    info.ui8Wwuln[1] = 0xBB;
    info.ui8Wwuln[2] = 0xCC;
    return info;
}

const std::string kSanLunBody = "    LUN Type   = Direct Access\n"
                                "    Vendor ID      = ACME\n"
                                "    Product ID     = FastDisk\n"
                                "    Revision Level = 0001\n"
                                "    Serial Number  = 0123456789ABCDEF";

} // namespace

TEST(KLunInfo, InvalidRecordPrintsOnlyStars)
{
    KLunInfo info = sanLun();
    info.bValid = false;
    EXPECT_EQ(info.displayText(), "********\n");
}

TEST(KLunInfo, OfflineRecordPrintsOnlyOffline)
{
    KLunInfo info = sanLun();
    info.ui32LunState = 0x200800; // everything but the online bit
    EXPECT_EQ(info.displayText(), "    ( Offline )\n");
}

TEST(KLunInfo, StateLineNamesSetBitsInRisingOrder)
{
    KLunInfo info = sanLun();
    EXPECT_EQ(info.displayLunStateText(), "    LUN State  = 0x200801 ( Online, Mapped, Cache Ready)");
}

TEST(KLunInfo, ControllerBitCountsInTheNumberButIsNeverNamed)
{
    KLunInfo info;
    info.ui32LunState = 0x1000000;
    EXPECT_EQ(info.displayLunStateText(), "    LUN State  = 0x1000000 ( )");
    info.ui32LunState = 0x1000001;
    EXPECT_EQ(info.displayLunStateText(), "    LUN State  = 0x1000001 ( Online)");
}

TEST(KLunInfo, FullTextOfSanLun)
{
    KLunInfo info = sanLun();
    strcpy(info.szPage80Serial, "SER123");
    info.ui32Page80SerialLength = 6;
    EXPECT_EQ(info.displayText(),
              "    LUN State  = 0x200801 ( Online, Mapped, Cache Ready)\n" + kSanLunBody +
                  "\n    Page 0x80 serial number = SER123"
                  "\n    WWULN = AABB-CC\n"
                  "    Size  = 1GB, (2097152 blocks)\n");
}

TEST(KLunInfo, SynchronizingSanLunHasFiveBlanksBeforeTheBracket)
{
    KLunInfo info = sanLun();
    info.bCacheSynchronizing = true;
    EXPECT_EQ(info.displayText().substr(0, 21), "     (synchronizing)\n");
}

TEST(KLunInfo, SanLunShowsNoMirrorLine)
{
    KLunInfo info = sanLun();
    info.m_eMirrorState = KLunInfo::MIRROR_STATE_PRIMARY;
    EXPECT_EQ(info.displayText().substr(0, 17), "    LUN State  = ");
}

TEST(KLunInfo, NonSanLunWithMirrorStateZeroPrintsStarsAndAnEmptyLine)
{
    KLunInfo info = sanLun();
    info.m_eLunType = KLunInfo::LUN_TYPE_UNKNOWN;
    info.m_eMirrorState = KLunInfo::MIRROR_STATE_UNKNOWN;
    EXPECT_EQ(info.displayText().substr(0, 29), "    ******\n\n    LUN State  = ");
}

TEST(KLunInfo, NonSanLunShowsItsMirrorRole)
{
    KLunInfo info = sanLun();
    info.ui32LunState = 0x1000001; // the controller bit makes it a non-SAN LUN
    info.m_eMirrorState = KLunInfo::MIRROR_STATE_SECONDARY;
    EXPECT_EQ(info.displayText().substr(0, 34), "Secondary Mirror\n    LUN State  = ");
    info.m_eMirrorState = KLunInfo::MIRROR_STATE_NOT_MIRRORED;
    EXPECT_EQ(info.displayText().substr(0, 17), "    LUN State  = ");
}

TEST(KLunInfo, TextWwulnIsQuoted)
{
    KLunInfo info = sanLun();
    info.eWwulnCodeSet = PBase::WWULN_CODE_SET_TEXT;
    strcpy(reinterpret_cast<char*>(info.ui8Wwuln), "LUN name 7");
    EXPECT_EQ(info.displayText(),
              "    LUN State  = 0x200801 ( Online, Mapped, Cache Ready)\n" + kSanLunBody +
                  "\n    WWULN = \"LUN name 7\"\n"
                  "    Size  = 1GB, (2097152 blocks)\n");
}

TEST(KLunInfo, EmptyTextWwulnLeavesTheLineToTheSize)
{
    KLunInfo info = sanLun();
    info.eWwulnCodeSet = PBase::WWULN_CODE_SET_TEXT;
    info.ui8Wwuln[0] = 0;
    EXPECT_EQ(info.displayText(),
              "    LUN State  = 0x200801 ( Online, Mapped, Cache Ready)\n" + kSanLunBody +
                  "\n    WWULN = \n"
                  "    Size  = 1GB, (2097152 blocks)\n");
}

TEST(KLunInfo, NoWwulnPrintsNothingForIt)
{
    KLunInfo info = sanLun();
    info.eWwulnCodeSet = PBase::WWULN_CODE_SET_NONE;
    EXPECT_EQ(info.displayText(),
              "    LUN State  = 0x200801 ( Online, Mapped, Cache Ready)\n" + kSanLunBody +
                  "\n    Size  = 1GB, (2097152 blocks)\n");
}

TEST(KLunInfo, DamagedWwulnLengthStaysInsideTheRecord)
{
    KLunInfo info = sanLun();
    info.ui32WwulnLength = 0xFFFFFFFF;
    const std::string text = info.displayText();
    EXPECT_NE(text.find("\n    WWULN = AABB-CC00-"), std::string::npos);
    EXPECT_NE(text.find("    Size  = 1GB"), std::string::npos);
}

TEST(KLunInfo, UnterminatedTextsStayInsideTheirArrays)
{
    KLunInfo info = sanLun();
    memset(info.szVendorId, 'V', sizeof(info.szVendorId));
    info.eWwulnCodeSet = PBase::WWULN_CODE_SET_TEXT;
    memset(info.ui8Wwuln, 'W', sizeof(info.ui8Wwuln));
    const std::string text = info.displayText();
    EXPECT_NE(text.find("Vendor ID      = VVVVVVVVV\n"), std::string::npos);
    EXPECT_NE(text.find("WWULN = \"" + std::string(256, 'W') + "\"\n"), std::string::npos);
}

TEST(KLunInfo, LocalSsdLunEndsWithItsOwnText)
{
    KLunInfo info = sanLun();
    info.ui32LunState = 0x40001;
    info.eWwulnCodeSet = PBase::WWULN_CODE_SET_NONE;
    info.ssdLunInfo.bValid = true;
    info.ssdLunInfo.ui64SizeBytes = 2147483648ULL;
    strcpy(info.ssdLunInfo.szSymbolicName, "data1");
    EXPECT_EQ(info.displayText(),
              "    LUN State  = 0x40001 ( Online, Storage Media SSD)\n" + kSanLunBody +
                  "    ZEK local LUN, Size = 2GB, (4194304 blocks)\n"
                  "    Symbolic Name = \"data1\"\n");
}

TEST(KLunInfo, Predicates)
{
    KLunInfo info = sanLun();
    EXPECT_TRUE(info.isLunInfoValid());
    EXPECT_TRUE(info.isOnline());
    EXPECT_TRUE(info.isSanLun());
    EXPECT_FALSE(info.isLunCached());
    EXPECT_TRUE(info.isLunState(KLunInfo::LUN_STATE_MAPPED));
    EXPECT_FALSE(info.isLunState(KLunInfo::LUN_STATE_LOCAL));
    EXPECT_FALSE(info.isLunState(32));

    info.m_eCacheState = KLunInfo::CACHE_STATE_CACHED_LOCAL;
    EXPECT_TRUE(info.isLunCached());
    info.m_eCacheState = KLunInfo::CACHE_STATE_CACHED_PEER;
    EXPECT_TRUE(info.isLunCached());
    EXPECT_EQ(info.eCacheState(), KLunInfo::CACHE_STATE_CACHED_PEER);

    info.ui32LunState |= 1u << KLunInfo::LUN_STATE_STORAGE_MEDIA_SSD;
    EXPECT_FALSE(info.isSanLun());
    info.ui32LunState = 1u | (1u << KLunInfo::LUN_STATE_TP_CONTROLLER_LUN);
    EXPECT_FALSE(info.isSanLun());
    info.ui32LunState = 1;
    info.m_eLunType = KLunInfo::LUN_TYPE_UNKNOWN;
    EXPECT_FALSE(info.isSanLun());
}

TEST(KLunInfo, LunStateTextsForEveryBit)
{
    const char* expected[32] = {
        "Online",
        "Unused 1",
        "Unused 2",
        "Unused 3",
        "Unused 4",
        "Mapping Disabled",
        "Unused 6",
        "Storage Controller LUN",
        "Unused 8",
        "Unused 9",
        "Unused 10",
        "Mapped",
        "Data Management LUN",
        "Unused 13",
        "Local",
        "Remote",
        "Read-only",
        "Delete in Progress",
        "Storage Media SSD",
        "Cache Store",
        "Unused 20",
        "Cache Ready",
        "Mirror",
        "Meta-LUN",
        "TP Controller LUN",
        "TP BBRAM Extents",
        "Logical Cache Pool LUN",
        "External Cache Store LUN",
        "Non-Rotating Medium",
        "Unused 29",
        "Unused 30",
        "Unused 31",
    };
    for (int bit = 0; bit < 32; ++bit)
        EXPECT_EQ(KLunInfo::lunStateToText(12345, bit), expected[bit]) << "bit " << bit;
    EXPECT_EQ(KLunInfo::lunStateToText(0, 32), "");
    EXPECT_EQ(KLunInfo::lunStateToText(0, 100), "");
    EXPECT_EQ(KLunInfo::lunStateToText(0, -1), "");
}

TEST(KLunInfo, LunTypeTexts)
{
    const char* expected[13] = {
        "Unknown LUN Type",
        "Direct Access",
        "Sequential Access",
        "Printer",
        "Processor",
        "Worm)",
        "DVD",
        "Scanner",
        "Optical",
        "Medium Changer",
        "Communication",
        "SAN Controller LUN",
        "Enclosure",
    };
    for (int type = 0; type < 13; ++type)
        EXPECT_EQ(KLunInfo::lunTypeToText(static_cast<KLunInfo::KISA_LUN_TYPE>(type)), expected[type]);
    EXPECT_EQ(KLunInfo::lunTypeToText(static_cast<KLunInfo::KISA_LUN_TYPE>(13)), "UNKNOWN LUN Type");
    EXPECT_EQ(KLunInfo::lunTypeToText(static_cast<KLunInfo::KISA_LUN_TYPE>(-1)), "UNKNOWN LUN Type");
}

TEST(KLunInfo, CacheStateTexts)
{
    using S = KLunInfo::KISA_CACHE_STATE;
    EXPECT_EQ(KLunInfo::lunCacheStateToText(S(0)), "    ******\n");
    EXPECT_EQ(KLunInfo::lunCacheStateToText(S(1)), "(Not Cached)");
    EXPECT_EQ(KLunInfo::lunCacheStateToText(S(2)), "LUN is cached on a local adapter");
    EXPECT_EQ(KLunInfo::lunCacheStateToText(S(3)), "LUN is cached on a peer adapter");
    EXPECT_EQ(KLunInfo::lunCacheStateToText(S(4)), "    ****\n");
    EXPECT_EQ(KLunInfo::lunCacheStateToText(S(-7)), "    ****\n");
}

TEST(KLunInfo, MirrorTypeTexts)
{
    using S = KLunInfo::KISA_MIRROR_STATE;
    EXPECT_EQ(KLunInfo::lunMirrorTypeToText(S(0)), "    ******\n");
    EXPECT_EQ(KLunInfo::lunMirrorTypeToText(S(1)), "(Not Mirrored)");
    EXPECT_EQ(KLunInfo::lunMirrorTypeToText(S(2)), "Primary Mirror");
    EXPECT_EQ(KLunInfo::lunMirrorTypeToText(S(3)), "Secondary Mirror");
    EXPECT_EQ(KLunInfo::lunMirrorTypeToText(S(4)), "    ****\n");
}

TEST(KLunInfo, CacheConfigWordsMatchCacheModesByValue)
{
    EXPECT_EQ(int(KLunInfo::CACHE_CONFIG_NONE), 0);
    EXPECT_EQ(int(KLunInfo::CACHE_CONFIG_READ_WRITE_THROUGH), int(KLunCacheInfo::CACHE_MODE_READ_WRITE_THROUGH));
    EXPECT_EQ(int(KLunInfo::CACHE_CONFIG_READ_WRITE_BACK), int(KLunCacheInfo::CACHE_MODE_READ_WRITE_BACK));
    EXPECT_EQ(int(KLunInfo::CACHE_CONFIG_READ_ONLY), int(KLunCacheInfo::CACHE_MODE_READ_ONLY));
    EXPECT_EQ(int(KLunInfo::CACHE_CONFIG_WRITE_THROUGH_ONLY), int(KLunCacheInfo::CACHE_MODE_WRITE_THROUGH_ONLY));
    EXPECT_EQ(int(KLunInfo::CACHE_CONFIG_WRITE_BACK_ONLY), int(KLunCacheInfo::CACHE_MODE_WRITE_BACK_ONLY));
}

TEST(KLunInfo, InitBlanksEverythingAndSetsTheSavedArea)
{
    KLunInfo info = sanLun();
    info.cacheInfo.bValid = true;
    info.ssdLunInfo.bValid = true;
    info.ui32DefaultMaxRead = 9;
    info.init();
    EXPECT_FALSE(info.bValid);
    EXPECT_EQ(info.ui32LunState, 0u);
    EXPECT_EQ(info.szVendorId[0], 0);
    EXPECT_FALSE(info.cacheInfo.bValid);
    EXPECT_FALSE(info.ssdLunInfo.bValid);
    EXPECT_EQ(info.ui32DefaultMaxRead, 0u);
    EXPECT_EQ(info.getSerialOffset(), 20u);
    EXPECT_EQ(info.getSerialSize(), 1540u);
}

TEST(KLunInfo, CopyTakesEveryFieldAndTheDefaults)
{
    KLunInfo info = sanLun();
    info.cacheInfo.ui32MaxRead = 2048;
    info.cacheInfo.lockedRanges[3].ui64StartLba = 77;
    info.ssdLunInfo.ui64MirrorPeerAdapter = 0xABC;
    info.ui32DefaultMaxRead = 1;
    info.ui32DefaultMinRead = 2;
    info.ui32DefaultMaxWrite = 3;
    info.ui32DefaultMinWrite = 4;

    KLunInfo copy(info);
    EXPECT_EQ(copy.displayText(), info.displayText());
    EXPECT_EQ(copy.cacheInfo.ui32MaxRead, 2048u);
    EXPECT_EQ(copy.cacheInfo.lockedRanges[3].ui64StartLba, 77u);
    EXPECT_EQ(copy.ssdLunInfo.ui64MirrorPeerAdapter, 0xABCu);
    EXPECT_EQ(copy.ui32DefaultMinWrite, 4u);

    KLunInfo assigned;
    assigned = info;
    EXPECT_EQ(assigned.ui32DefaultMaxWrite, 3u);
    EXPECT_EQ(memcmp(assigned.ui8Wwuln, info.ui8Wwuln, sizeof(info.ui8Wwuln)), 0);

    assigned = assigned; // assigning a record to itself keeps it
    EXPECT_TRUE(assigned.bValid);
    EXPECT_EQ(assigned.ui32DefaultMaxWrite, 3u);
}

TEST(KLunInfo, SavedImageLeavesOutTheDefaultSizes)
{
    KLunInfo info = sanLun();
    info.cacheInfo.bValid = true;
    info.cacheInfo.ui32LockedRangeCount = 1;
    info.cacheInfo.lockedRanges[0].ui64StartLba = 4096;
    info.cacheInfo.lockedRanges[0].ui32Size = 8;
    info.ssdLunInfo.bValid = true;
    strcpy(info.ssdLunInfo.szSymbolicName, "data1");
    info.ui32DefaultMaxRead = 128;
    info.ui32DefaultMinWrite = 16;

    KLunInfo back;
    std::string err;
    ASSERT_TRUE(roundTrip(info, back, err)) << err;
    EXPECT_EQ(back.displayText(), info.displayText());
    EXPECT_TRUE(back.cacheInfo.bValid);
    EXPECT_EQ(back.cacheInfo.lockedRanges[0].ui64StartLba, 4096u);
    EXPECT_EQ(back.cacheInfo.lockedRanges[0].ui32Size, 8u);
    EXPECT_STREQ(back.ssdLunInfo.szSymbolicName, "data1");
    EXPECT_EQ(back.ui32DefaultMaxRead, 0u);
    EXPECT_EQ(back.ui32DefaultMinWrite, 0u);
}

TEST(KLunInfo, SavedImageSizeIsTheSumOfItsParts)
{
    KLunInfo info = sanLun();
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    std::string err;
    ASSERT_TRUE(info.serialize(true, f, err));
    // 604 bytes of own fields, 164 of the local LUN, 76 + 16 * 16 of the cache.
    EXPECT_EQ(ftell(f), 604 + 164 + 76 + 16 * 16);
    fclose(f);
}

TEST(KLunInfo, ReadingFromAnEmptyFileFails)
{
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    KLunInfo info;
    std::string err;
    EXPECT_FALSE(info.serialize(false, f, err));
    EXPECT_EQ(err, "Could not read from file");
    fclose(f);
}
