#include "records/PUniqueID.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <new>
#include <string>

namespace {

const unsigned char kWwpn[8] = {0x10, 0x00, 0x00, 0x00, 0xC9, 0x12, 0x34, 0x56};
const char kWwpnText[] = "1000-0000-C912-3456";

PTargetID fcTarget()
{
    PTargetID target;
    target.initFcTargetID(kWwpn, 8);
    return target;
}

// ---- the shared body ------------------------------------------------------------------

TEST(PUniqueID, DefaultIdentifierIsEmptyAndEqualToAnotherEmptyOne)
{
    PTargetID a;
    PTargetID b;
    EXPECT_TRUE(a.isEmpty());
    EXPECT_EQ(0, a.getDataLength());
    EXPECT_EQ(PUniqueID::ID_TYPE_TARGET, a.getIdType());
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(PUniqueID, EmptyIdentifiersOfDifferentClassesDiffer)
{
    PTargetID target;
    PInitiatorID initiator;
    EXPECT_FALSE(target == initiator);
    EXPECT_TRUE(target != initiator);
}

TEST(PUniqueID, TagsOfEveryClass)
{
    EXPECT_EQ(1, PInitiatorID().getIdType());
    EXPECT_EQ(2, PTargetID().getIdType());
    EXPECT_EQ(5, PLunID().getIdType());
    EXPECT_EQ(6, PLunMaskID().getIdType());
    EXPECT_EQ(12, PLunsForOneNameID().getIdType());
    EXPECT_EQ(0, KUniqueID().getIdType());
    EXPECT_EQ(1001, KClusterID().getIdType());
    EXPECT_EQ(1003, KDeviceID().getIdType());
    EXPECT_EQ(1004, KDriveID().getIdType());
    EXPECT_EQ(1005, KDrivePoolID().getIdType());
    EXPECT_EQ(1006, KWwulnLunID().getIdType());
}

TEST(PUniqueID, TargetAndDeviceWithTheSameNameDiffer)
{
    PTargetID target = fcTarget();
    KDeviceID device;
    device.initFcDeviceID(kWwpn, 8);
    EXPECT_EQ(target.getDataLength(), device.getDataLength());
    EXPECT_EQ(0, memcmp(target.getData(), device.getData(), PUniqueID::DATA_SIZE));
    EXPECT_FALSE(target == device);
    EXPECT_FALSE(device == target);
}

TEST(PUniqueID, EqualityComparesOnlyTheUsedBytes)
{
    PTargetID a = fcTarget();
    PTargetID b = fcTarget();
    EXPECT_TRUE(a == b);
    unsigned char other[8] = {0x10, 0x00, 0x00, 0x00, 0xC9, 0x12, 0x34, 0x57};
    b.initFcTargetID(other, 8);
    EXPECT_TRUE(a != b);
    const PUniqueID& base = a;
    EXPECT_TRUE(base != b); // through the virtual slot
}

TEST(PUniqueID, AssignmentKeepsTheTagOfTheSource)
{
    PTargetID target = fcTarget();
    PUniqueID copy;
    copy = target;
    EXPECT_EQ(PUniqueID::ID_TYPE_TARGET, copy.getIdType());
    EXPECT_TRUE(copy == target);
}

TEST(PUniqueID, InitKeepsTheTag)
{
    PTargetID target = fcTarget();
    target.init();
    EXPECT_TRUE(target.isEmpty());
    EXPECT_EQ(PUniqueID::ID_TYPE_TARGET, target.getIdType());
    for (int i = 0; i < PUniqueID::DATA_SIZE; ++i) {
        ASSERT_EQ(0, target.getData()[i]);
    }
}

TEST(PUniqueID, DestroyedIdentifierIsBlank)
{
    alignas(PTargetID) unsigned char storage[sizeof(PTargetID)];
    auto* target = new (storage) PTargetID(fcTarget());
    target->~PTargetID();
    int32_t length;
    memcpy(&length, storage + 12, sizeof length);
    EXPECT_EQ(0, length);
    for (size_t i = 16; i < 16 + PUniqueID::DATA_SIZE; ++i) {
        ASSERT_EQ(0, storage[i]) << i;
    }
}

TEST(PUniqueID, InitFromStringCapsAt268)
{
    std::string longText(300, 'x');
    PUniqueID id;
    id.initFromString(reinterpret_cast<const unsigned char*>(longText.c_str()));
    EXPECT_EQ(268, id.getDataLength());
    EXPECT_EQ('x', id.getData()[267]);
    EXPECT_EQ(0, id.getData()[268]);
    id.initFromString(reinterpret_cast<const unsigned char*>("abc"));
    EXPECT_EQ(3, id.getDataLength());
    EXPECT_EQ(0, id.getData()[3]);
}

TEST(PUniqueID, InitFromDataAndCopyIdData)
{
    const unsigned char bytes[] = {1, 2, 3, 4, 5};
    PUniqueID id;
    id.initFromData(bytes, 5);
    unsigned char out[8] = {};
    int length = 0;
    id.copyIdData(out, sizeof out, length);
    EXPECT_EQ(5, length);
    EXPECT_EQ(0, memcmp(bytes, out, 5));
    EXPECT_EQ(0, out[5]);
}

TEST(PUniqueID, BaseTextIsTheFirstEightBytesAsWorldWideName)
{
    PUniqueID id;
    id.initFromData(kWwpn, 8);
    EXPECT_EQ(kWwpnText, id.displayText());
}

TEST(PUniqueID, SerializeWritesTagLengthAndBodyAndReadsThemBack)
{
    FILE* file = tmpfile();
    ASSERT_NE(nullptr, file);
    PTargetID out = fcTarget();
    std::string error;
    ASSERT_TRUE(out.serialize(true, file, error));
    EXPECT_EQ(277L, ftell(file));
    rewind(file);
    unsigned char head[9];
    ASSERT_EQ(9u, fread(head, 1, 9, file));
    EXPECT_EQ(2, head[0]);  // tag
    EXPECT_EQ(12, head[4]); // length
    EXPECT_EQ(1, head[8]);  // protocol, first byte of the body
    rewind(file);
    PTargetID in;
    ASSERT_TRUE(in.serialize(false, file, error));
    EXPECT_TRUE(in == out);
    EXPECT_EQ(kWwpnText, in.displayText());
    std::string readError;
    EXPECT_FALSE(in.serialize(false, file, readError));
    EXPECT_EQ("Could not read from file", readError);
    fclose(file);
}

// ---- save strings -----------------------------------------------------------------------

TEST(PUniqueIDSaveString, TargetSaveStringIsExact)
{
    EXPECT_EQ("2000C0100000010000000C9123456", fcTarget().getSaveString());
}

TEST(PUniqueIDSaveString, LunRoundTripRebuildsItsTarget)
{
    PLunID lun;
    lun.initLunID(fcTarget(), 2, PBase::VPGROUP_1);
    std::string text = lun.getSaveString();
    EXPECT_EQ("5001102000000010100000010000000C9123456", text);
    PLunID restored;
    ASSERT_TRUE(restored.restoreFromSaveString(text));
    EXPECT_TRUE(restored == lun);
    EXPECT_TRUE(restored.targetID() == fcTarget());
    EXPECT_EQ(2, restored.lunNumber());
    EXPECT_EQ(PBase::VPGROUP_1, restored.vpgIndex());
}

TEST(PUniqueIDSaveString, SmallLetterFailsAndEmptiesTheValue)
{
    PTargetID target = fcTarget();
    EXPECT_FALSE(target.restoreFromSaveString("2000C0100000010000000c9123456"));
    EXPECT_TRUE(target.isEmpty());
    EXPECT_EQ(0, target.getData()[0]);
    EXPECT_EQ(PUniqueID::ID_TYPE_TARGET, target.getIdType());
}

TEST(PUniqueIDSaveString, EmptyTextFails)
{
    PTargetID target = fcTarget();
    EXPECT_FALSE(target.restoreFromSaveString(""));
    EXPECT_TRUE(target.isEmpty());
}

TEST(PUniqueIDSaveString, TagComesFromTheTextAndShortTextsKeepWhatTheyHold)
{
    PUniqueID id;
    ASSERT_TRUE(id.restoreFromSaveString("20003AABB"));
    EXPECT_EQ(2, id.getIdType());
    EXPECT_EQ(3, id.getDataLength());
    EXPECT_EQ(0xAA, id.getData()[0]);
    EXPECT_EQ(0xBB, id.getData()[1]);
    EXPECT_EQ(0, id.getData()[2]);
}

TEST(PUniqueIDSaveString, OversizedLengthStaysInsideTheBody)
{
    PUniqueID id;
    std::string text = "1FFFF" + std::string(700, 'A');
    ASSERT_TRUE(id.restoreFromSaveString(text));
    EXPECT_EQ(0xFFFF, id.getDataLength());
    EXPECT_EQ(0xAA, id.getData()[PUniqueID::DATA_SIZE - 1]);
    EXPECT_EQ(std::string("1FFFF") + std::string(2 * PUniqueID::DATA_SIZE, 'A'), id.getSaveString());
}

// ---- targets, initiators and devices ------------------------------------------------------

TEST(PTargetID, FibreChannelNameOfEightBytesHasLength12)
{
    PTargetID target = fcTarget();
    EXPECT_EQ(12, target.getDataLength());
    EXPECT_TRUE(target.isFcTargetId());
    EXPECT_FALSE(target.isIscsiTargetId());
    EXPECT_EQ(kWwpnText, target.displayText());
}

TEST(PTargetID, FromStringReadsTheWorldWideName)
{
    PTargetID target;
    target.initFcTargetIDFromString("10:00:00:00:c9:12:34:56");
    EXPECT_TRUE(target == fcTarget());
}

TEST(PTargetID, FromUnreadableStringKeepsWhatWasRead)
{
    PTargetID target;
    target.initFcTargetIDFromString("10:00:0");
    EXPECT_EQ(6, target.getDataLength());
    EXPECT_EQ(0x10, target.getData()[4]);
    target.initFcTargetIDFromString("zz");
    EXPECT_EQ(4, target.getDataLength());
    EXPECT_TRUE(target.isFcTargetId());
}

TEST(PTargetID, NameLengthIsCappedAndTheCopyLimitedTo256)
{
    unsigned char longName[300];
    memset(longName, 0x77, sizeof longName);
    PTargetID target;
    target.initFcTargetID(longName, 300);
    EXPECT_EQ(269, target.getDataLength());
    EXPECT_EQ(0x77, target.getData()[4 + 255]);
    EXPECT_EQ(0, target.getData()[4 + 256]);
}

TEST(PTargetID, IscsiName)
{
    PTargetID target;
    target.initIscsiTargetID(reinterpret_cast<const unsigned char*>("iqn.2001-04.com.example:disk1"));
    EXPECT_TRUE(target.isIscsiTargetId());
    EXPECT_EQ(29 + 4, target.getDataLength());
    EXPECT_EQ("iqn.2001-04.com.example:disk1", target.displayText());
    unsigned char name[64];
    EXPECT_TRUE(target.getIscsiName(name, sizeof name));
    EXPECT_STREQ("iqn.2001-04.com.example:disk1", reinterpret_cast<char*>(name));
    unsigned char wwpn[8];
    EXPECT_FALSE(target.getFcWwpn(wwpn, sizeof wwpn));
}

TEST(PTargetID, GetFcWwpn)
{
    unsigned char wwpn[8] = {};
    EXPECT_TRUE(fcTarget().getFcWwpn(wwpn, sizeof wwpn));
    EXPECT_EQ(0, memcmp(kWwpn, wwpn, 8));
    unsigned char name[16];
    EXPECT_FALSE(fcTarget().getIscsiName(name, sizeof name));
}

TEST(PTargetID, UninitialisedText)
{
    EXPECT_EQ("Unknown -- Not Initialized", PTargetID().displayText());
}

TEST(PInitiatorID, SameLayoutAsTargets)
{
    PInitiatorID initiator;
    initiator.initFcInitiatorID(kWwpn, 8);
    EXPECT_EQ(12, initiator.getDataLength());
    EXPECT_TRUE(initiator.isFcInitiatorId());
    EXPECT_EQ(kWwpnText, initiator.displayText());
    initiator.initIscsiInitiatorID(reinterpret_cast<const unsigned char*>("iqn.host"));
    EXPECT_TRUE(initiator.isIscsiInitiatorId());
    EXPECT_EQ("iqn.host", initiator.displayText());
    initiator.initFcInitiatorIDFromString("1000-0000-C912-3456");
    EXPECT_EQ(kWwpnText, initiator.displayText());
}

TEST(KDeviceID, FibreChannelNameIsNotCappedAndIscsiIsCappedAt255)
{
    unsigned char longName[300];
    memset(longName, 0x41, sizeof longName);
    KDeviceID device;
    device.initFcDeviceID(longName, 300);
    EXPECT_EQ(304, device.getDataLength());
    std::string longText(300, 'n');
    device.initIscsiDeviceID(reinterpret_cast<const unsigned char*>(longText.c_str()));
    EXPECT_EQ(259, device.getDataLength());
}

TEST(KDeviceID, GivesTargetAndInitiatorByProtocol)
{
    KDeviceID device;
    device.initFcDeviceIDFromString(kWwpnText);
    PTargetID target;
    device.getTargetID(target);
    EXPECT_TRUE(target == fcTarget());
    PInitiatorID initiator;
    device.getInitiatorID(initiator);
    EXPECT_TRUE(initiator.isFcInitiatorId());
    EXPECT_EQ(12, initiator.getDataLength());

    device.initIscsiDeviceID(reinterpret_cast<const unsigned char*>("iqn.dev"));
    device.getTargetID(target);
    EXPECT_TRUE(target.isIscsiTargetId());
    EXPECT_EQ("iqn.dev", target.displayText());
    EXPECT_EQ("iqn.dev", device.displayText());

    KDeviceID none;
    target = fcTarget();
    none.getTargetID(target);
    EXPECT_TRUE(target.isEmpty());
    EXPECT_EQ("Unknown -- Not Initialized", none.displayText());
}

// ---- LUNs -------------------------------------------------------------------------------------

TEST(PLunID, LunOnEightByteTargetHasLength17)
{
    PLunID lun;
    EXPECT_TRUE(lun.initLunID(fcTarget(), 3, PBase::VPGROUP_2));
    EXPECT_EQ(17, lun.getDataLength());
    EXPECT_EQ(3, lun.lunNumber());
    EXPECT_EQ(PBase::VPGROUP_2, lun.vpgIndex());
    EXPECT_TRUE(lun.targetID() == fcTarget());
    EXPECT_EQ(0, memcmp(lun.getData() + 5, fcTarget().getData(), 12));
}

TEST(PLunID, VpGroupZeroIsReportedButStoredAsFive)
{
    PLunID lun;
    EXPECT_FALSE(lun.initLunID(fcTarget(), 3, PBase::VPGROUP_NONE));
    EXPECT_EQ(17, lun.getDataLength());
    EXPECT_EQ(PBase::VPGROUP_UNKNOWN, lun.vpgIndex());
    EXPECT_EQ(3, lun.lunNumber());
}

TEST(PLunID, Texts)
{
    PLunID lun;
    lun.initLunID(fcTarget(), 2, PBase::VPGROUP_1);
    EXPECT_EQ(std::string("LUN 2  1st VP Group  on Target: ") + kWwpnText, lun.displayText());
    EXPECT_EQ(std::string("LUN 2  on Target: ") + kWwpnText, lun.displayTextWithoutVpGroup());
}

TEST(PLunID, IsEqualLunNumberNeedsARealVpGroup)
{
    PLunID lun;
    lun.initLunID(fcTarget(), 7, PBase::VPGROUP_3);
    EXPECT_TRUE(lun.isEqualLunNumber(7, PBase::VPGROUP_3));
    EXPECT_FALSE(lun.isEqualLunNumber(7, PBase::VPGROUP_2));
    EXPECT_FALSE(lun.isEqualLunNumber(8, PBase::VPGROUP_3));
    PLunID noGroup;
    noGroup.initLunID(fcTarget(), 7, PBase::VPGROUP_NONE);
    EXPECT_FALSE(noGroup.isEqualLunNumber(7, PBase::VPGROUP_UNKNOWN));
}

TEST(PLunID, FromWwpnText)
{
    PLunID lun;
    EXPECT_TRUE(lun.initLunIdOnFcTargetFromString("10-00-00-00-C9-12-34-56", 1, PBase::VPGROUP_4));
    EXPECT_TRUE(lun.targetID() == fcTarget());
}

TEST(PLunID, CopiesKeepTheTarget)
{
    PLunID lun;
    lun.initLunID(fcTarget(), 9, PBase::VPGROUP_1);
    PLunID copy(lun);
    EXPECT_TRUE(copy == lun);
    EXPECT_TRUE(copy.targetID() == fcTarget());
    PLunID viaBase;
    static_cast<PUniqueID&>(viaBase) = static_cast<const PUniqueID&>(lun);
    EXPECT_TRUE(viaBase == lun);
    EXPECT_TRUE(viaBase.targetID() == fcTarget());
}

TEST(PLunMaskID, InitCopiesTheLunAndItsData)
{
    PLunID lun;
    lun.initLunID(fcTarget(), 4, PBase::VPGROUP_2);
    PLunMaskID mask;
    mask.initMaskID(lun);
    EXPECT_EQ(PUniqueID::ID_TYPE_LUN_MASK, mask.getIdType());
    EXPECT_EQ(lun.getDataLength(), mask.getDataLength());
    EXPECT_EQ(0, memcmp(lun.getData(), mask.getData(), PUniqueID::DATA_SIZE));
    EXPECT_TRUE(mask.lunID() == lun);
    EXPECT_TRUE(mask.targetID() == fcTarget());
    EXPECT_EQ("0400-0000-0201-0000", mask.displayText());
}

TEST(PLunMaskID, RestoreKeepsTheTargetButComesBackAsLunZeroWithEmptyData)
{
    PLunID lun;
    lun.initLunID(fcTarget(), 4, PBase::VPGROUP_2);
    PLunMaskID mask;
    mask.initMaskID(lun);
    PLunMaskID restored;
    ASSERT_TRUE(restored.restoreFromSaveString(mask.getSaveString()));
    EXPECT_TRUE(restored.isEmpty());
    EXPECT_EQ(0, restored.lunID().lunNumber());
    EXPECT_EQ(PBase::VPGROUP_UNKNOWN, restored.lunID().vpgIndex());
    EXPECT_TRUE(restored.targetID() == fcTarget());
}

TEST(PLunsForOneNameID, AsciiName)
{
    PLunsForOneNameID id;
    EXPECT_TRUE(id.initLunsForOneNameID(PBase::LUN_NAME_SERIAL_NUMBER, "SER-123"));
    EXPECT_EQ(7 + 12, id.getDataLength());
    EXPECT_FALSE(id.isBinary());
    EXPECT_EQ(PBase::LUN_NAME_SERIAL_NUMBER, id.lunNameType());
    EXPECT_EQ("SER-123", id.displayShortText());
    EXPECT_EQ("ASCII serial number SER-123", id.displayText());
}

TEST(PLunsForOneNameID, BinaryNameShowsEmptyBecauseItsLengthIsNeverSet)
{
    const unsigned char bytes[] = {0x60, 0x05, 0x08, 0xB4};
    PLunsForOneNameID id;
    EXPECT_TRUE(id.initLunsForOneNameIDFromBinaryData(PBase::LUN_NAME_WWULN, bytes, 4));
    EXPECT_TRUE(id.isBinary());
    EXPECT_EQ(16, id.getDataLength());
    EXPECT_EQ("", id.displayShortText());
    EXPECT_EQ("Binary WWULN ", id.displayText());
}

TEST(PLunsForOneNameID, LengthLimits)
{
    unsigned char bytes[300] = {};
    PLunsForOneNameID id;
    EXPECT_TRUE(id.initLunsForOneNameIDFromBinaryData(PBase::LUN_NAME_WWULN, bytes, 257));
    EXPECT_EQ(256 + 12, id.getDataLength());
    EXPECT_FALSE(id.initLunsForOneNameIDFromBinaryData(PBase::LUN_NAME_WWULN, bytes, 258));
    EXPECT_FALSE(id.initLunsForOneNameID(PBase::LUN_NAME_WWULN, std::string(300, 'w')));
    EXPECT_EQ(256 + 12, id.getDataLength());
}

// ---- identifiers of the adapter's own objects ---------------------------------------------------

TEST(KClusterID, KeyUpTo16Bytes)
{
    KClusterID id;
    EXPECT_TRUE(id.initClusterID("cluster-A", 9));
    EXPECT_EQ(9, id.getDataLength());
    EXPECT_TRUE(id.isClusterKeyValid());
    EXPECT_EQ("cluster-A", id.displayText());
}

TEST(KClusterID, Length17LeavesTheOldKey)
{
    KClusterID id;
    id.initClusterID("old", 3);
    EXPECT_FALSE(id.initClusterID("0123456789abcdefg", 17));
    EXPECT_EQ("old", id.displayText());
    EXPECT_EQ(3, id.getDataLength());
}

TEST(KClusterID, ZeroKeysAreInvalidAndLengthZeroIsEmpty)
{
    KClusterID id;
    const char zeros[4] = {};
    EXPECT_TRUE(id.initClusterID(zeros, 4));
    EXPECT_FALSE(id.isClusterKeyValid());
    EXPECT_TRUE(id.initClusterID("abc", 0));
    EXPECT_TRUE(id.isEmpty());
    EXPECT_FALSE(id.isClusterKeyValid());
}

TEST(KDriveID, CodeSet3StaysEmpty)
{
    unsigned char name[] = {1, 2, 3};
    KDriveID id;
    id.initDriveID(static_cast<PBase::WWULN_CODE_SET_TYPE>(3), 3, name);
    EXPECT_TRUE(id.isEmpty());
    EXPECT_EQ(0, id.getData()[0]);
}

TEST(KDriveID, BinaryAndTextNames)
{
    unsigned char binary[] = {0xAA, 0xBB, 0xCC};
    KDriveID id;
    id.initDriveID(PBase::WWULN_CODE_SET_BINARY, 3, binary);
    EXPECT_EQ(11, id.getDataLength());
    EXPECT_EQ(3, id.getWwulnIdLength());
    EXPECT_EQ("AABB-CC", id.displayText());
    unsigned char out[8] = {};
    id.getWwulnID(out, sizeof out);
    EXPECT_EQ(0, memcmp(binary, out, 3));

    unsigned char text[] = "SSD-7";
    id.initDriveID(PBase::WWULN_CODE_SET_TEXT, 5, text);
    EXPECT_EQ("SSD-7", id.displayText());
}

TEST(KWwulnLunID, CopyWwulnInfo)
{
    unsigned char name[] = {0x60, 0x05};
    KWwulnLunID id;
    PBase::WWULN_CODE_SET_TYPE set = PBase::WWULN_CODE_SET_NONE;
    unsigned short length = 0;
    unsigned char out[256];
    EXPECT_FALSE(id.copyWwulnInfo(set, length, out, sizeof out));
    id.initWwulnLunID(PBase::WWULN_CODE_SET_BINARY, 2, name);
    EXPECT_TRUE(id.copyWwulnInfo(set, length, out, sizeof out));
    EXPECT_EQ(PBase::WWULN_CODE_SET_BINARY, set);
    EXPECT_EQ(2, length);
    EXPECT_EQ(0x60, out[0]);
    EXPECT_EQ(0, out[255]);
    EXPECT_EQ("6005", id.displayText());
    id.initWwulnLunID(PBase::WWULN_CODE_SET_TEXT, 0, name);
    EXPECT_FALSE(id.copyWwulnInfo(set, length, out, sizeof out));
}

TEST(KDrivePoolID, NameUpTo32Bytes)
{
    KDrivePoolID id;
    unsigned char name[] = "pool0";
    id.initDrivePoolID(name);
    EXPECT_EQ(5, id.getDataLength());
    EXPECT_EQ("pool0", id.displayText());
    std::string longName(40, 'p');
    id.initDrivePoolID(reinterpret_cast<unsigned char*>(longName.data()));
    EXPECT_EQ(32, id.getDataLength());
    EXPECT_EQ(std::string(32, 'p'), id.displayText());
    id.initDrivePoolID(nullptr);
    EXPECT_TRUE(id.isEmpty());
    unsigned char empty[] = "";
    id.initDrivePoolID(empty);
    EXPECT_TRUE(id.isEmpty());
}

} // namespace
