#include "records/KSsdLunInfo.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(KSsdLunInfo, InvalidRecordPrintsStars)
{
    KSsdLunInfo info;
    info.ui64SizeBytes = 1024;
    EXPECT_EQ(info.displayText(), "********\n");
}

TEST(KSsdLunInfo, PlainLocalLun)
{
    KSsdLunInfo info;
    info.bValid = true;
    info.ui64SizeBytes = 2147483648ULL;
    strcpy(info.szSymbolicName, "data1");
    info.eSsdMirrorType = KSsdLunInfo::SSD_MIRROR_NONE;
    EXPECT_EQ(info.displayText(),
              "    ZEK local LUN, Size = 2GB, (4194304 blocks)\n"
              "    Symbolic Name = \"data1\"\n");
}

TEST(KSsdLunInfo, ReadOnlyDeletingMirroredLun)
{
    KSsdLunInfo info;
    info.bValid = true;
    info.ui64SizeBytes = 1048576;
    strcpy(info.szSymbolicName, "db logs");
    info.bReadOnly = true;
    info.bDeleteInProgress = true;
    info.eSsdMirrorType = KSsdLunInfo::SSD_MIRROR_SSD_SSD;
    info.ui64MirrorPeerAdapter = 0x2000ABC;
    EXPECT_EQ(info.displayText(),
              "    ZEK local LUN, Size = 1MB, (2048 blocks)\n"
              "    Symbolic Name = \"db logs\"\n"
              "    READ-ONLY\n"
              "    *** DELETE IN PROGRESS ***\n"
              "    SSD-SSD Mirror,  (Mirrored Peer Adapter -zek=2000ABC )\n");
    EXPECT_TRUE(info.isReadOnly());
    EXPECT_TRUE(info.isDeleteInProgress());
    EXPECT_TRUE(info.isSsdLunInfoValid());
}

TEST(KSsdLunInfo, CopyAndInit)
{
    KSsdLunInfo info;
    info.bValid = true;
    strcpy(info.szSymbolicName, "x");
    KSsdLunInfo copy(info);
    EXPECT_STREQ(copy.szSymbolicName, "x");
    copy.init();
    EXPECT_FALSE(copy.bValid);
    EXPECT_EQ(copy.szSymbolicName[0], 0);
    EXPECT_EQ(copy.getSerialSize(), 164u);
}
