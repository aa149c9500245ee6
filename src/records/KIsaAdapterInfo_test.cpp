#include "records/KIsaAdapterInfo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

template <size_t N>
void set(char (&field)[N], const char* text)
{
    PBase::textToCharField(field, N, text);
}

KIsaAdapterInfo onlineAdapter()
{
    KIsaAdapterInfo info;
    info.adapterState = KIsaAdapterInfo::ADAPTER_STATE_ONLINE;
    set(info.productName, "ZEK-8200");
    set(info.symbolicName, "cache-a");
    set(info.serialNumber, "SN0001");
    set(info.swVersion, "4.2.0");
    set(info.ubootBiosVersion, "1.1");
    set(info.hwVersion, "B0");
    set(info.biosVersion, "2.0");
    set(info.efiVersion, "3.0");
    info.hostInfo.hostType = KHostInfo::HOST_TYPE_UNKNOWN;
    return info;
}

const char kHostText[] = "        *** Unknown host type ***\n";

const char kProductText[] = "\n        Product Name        = ZEK-8200"
                            "\n        Symbolic Name       = cache-a"
                            "\n        Serial Number       = SN0001"
                            "\n        SW Version          = 4.2.0\n"
                            "        u-boot BIOS Version = 1.1\n"
                            "        HW Version          = B0\n"
                            "        BIOS Version        = 2.0\n"
                            "        EFI Version         = 3.0\n";

TEST(KIsaAdapterInfo, OfflineAdapterShowsNoProductDataButKeepsItsHost)
{
    KIsaAdapterInfo info = onlineAdapter();
    info.adapterState = KIsaAdapterInfo::ADAPTER_STATE_OFFLINE;
    info.bClusterPrimary = true;
    info.bAutoClusterEnabled = true;
    EXPECT_EQ(std::string("        *** OFFLINE ***") + kHostText, info.displayText());
}

TEST(KIsaAdapterInfo, OtherStatesShowStars)
{
    KIsaAdapterInfo info = onlineAdapter();
    info.adapterState = 0;
    EXPECT_EQ(std::string("        ***") + kHostText, info.displayText());
    info.adapterState = 7;
    EXPECT_EQ(std::string("        ******") + kHostText, info.displayText());
}

TEST(KIsaAdapterInfo, OnlineAdapterOutsideAnyCluster)
{
    EXPECT_EQ(std::string("        (Not part of any cluster)") + kProductText + kHostText,
              onlineAdapter().displayText());
}

TEST(KIsaAdapterInfo, RolesAreTestedPrimarySecondaryMember)
{
    KIsaAdapterInfo info = onlineAdapter();
    info.bClusterMember = true;
    info.bClusterPrimary = true;
    info.bClusterSecondary = true;
    info.bAutoClusterEnabled = true;
    EXPECT_EQ(std::string("        [Cluster Primary]\n        Auto-Clustering     = ENABLED\n") + kProductText +
                  kHostText,
              info.displayText());
    info.bClusterPrimary = false;
    EXPECT_EQ(std::string("        [Cluster Secondary]\n        Auto-Clustering     = ENABLED\n") + kProductText +
                  kHostText,
              info.displayText());
}

TEST(KIsaAdapterInfo, MemberWithMismatchedIdsSaysSo)
{
    KIsaAdapterInfo info = onlineAdapter();
    info.bClusterMember = true;
    info.primaryAdapterId = 0x2000ABCULL;
    info.secondaryAdapterId = 0x3000DEFULL;
    EXPECT_EQ(std::string("        [Cluster Member]") +
                  "\n        <This adapter has a primary adapter ID (2000ABC) that does not match the primary "
                  "for the cluster>\n" +
                  "\n        <This adapter has a secondary adapter ID (3000DEF) that does not match the "
                  "secondary for the cluster>\n" +
                  kProductText + kHostText,
              info.displayText());
}

TEST(KIsaAdapterInfo, PrimaryNeverReportsMismatchedIds)
{
    KIsaAdapterInfo info = onlineAdapter();
    info.bClusterMember = true;
    info.bClusterPrimary = true;
    info.primaryAdapterId = 5;
    EXPECT_EQ(std::string("        [Cluster Primary]") + kProductText + kHostText, info.displayText());
}

TEST(KIsaAdapterInfo, EmptyFieldsAreLeftOutUpToTheSoftwareVersionAndNewlinesAreNotDoubled)
{
    KIsaAdapterInfo info;
    info.adapterState = KIsaAdapterInfo::ADAPTER_STATE_ONLINE;
    set(info.swVersion, "4.2.0\n");
    EXPECT_EQ(std::string("        (Not part of any cluster)\n        SW Version          = 4.2.0\n") +
                  "        u-boot BIOS Version = \n"
                  "        HW Version          = \n"
                  "        BIOS Version        = \n"
                  "        EFI Version         = \n" +
                  kHostText,
              info.displayText());
}

TEST(KIsaAdapterInfo, IsCapableWithIndex6IsFalse)
{
    KIsaAdapterInfo info;
    for (unsigned char& capability : info.capabilities) {
        capability = 1;
    }
    EXPECT_FALSE(info.isCapable(static_cast<KIsaAdapterInfo::ZEK_CAPABILITY_TYPE>(6)));
    EXPECT_FALSE(info.isCapable(static_cast<KIsaAdapterInfo::ZEK_CAPABILITY_TYPE>(-1)));
    EXPECT_TRUE(info.isCapable(KIsaAdapterInfo::ZEK_CAPABILITY_RESERVED_5));
}

TEST(KIsaAdapterInfo, IsCapableReadsOneBytePerCapability)
{
    KIsaAdapterInfo info;
    info.capabilities[KIsaAdapterInfo::WRITE_BACK_CACHE] = 1;
    info.capabilities[KIsaAdapterInfo::NVDIMM_DATA_LUN] = 0x80;
    EXPECT_TRUE(info.isCapable(KIsaAdapterInfo::WRITE_BACK_CACHE));
    EXPECT_FALSE(info.isCapable(KIsaAdapterInfo::WRITE_THROUGH_CACHE));
    EXPECT_FALSE(info.isCapable(KIsaAdapterInfo::LOCAL_SSD_DATA_LUN));
    EXPECT_TRUE(info.isCapable(KIsaAdapterInfo::NVDIMM_DATA_LUN));
}

TEST(KIsaAdapterInfo, CapabilityTexts)
{
    using Type = KIsaAdapterInfo::ZEK_CAPABILITY_TYPE;
    EXPECT_EQ("", KIsaAdapterInfo::zekCapabilityToText(static_cast<Type>(0)));
    EXPECT_EQ("WRITE_BACK_CACHE", KIsaAdapterInfo::zekCapabilityToText(static_cast<Type>(1)));
    EXPECT_EQ("WRITE_THROUGH_CACHE", KIsaAdapterInfo::zekCapabilityToText(static_cast<Type>(2)));
    EXPECT_EQ("LOCAL_SSD_DATA_LUN", KIsaAdapterInfo::zekCapabilityToText(static_cast<Type>(3)));
    EXPECT_EQ("", KIsaAdapterInfo::zekCapabilityToText(static_cast<Type>(4)));
    EXPECT_EQ("", KIsaAdapterInfo::zekCapabilityToText(static_cast<Type>(5)));
    EXPECT_EQ("", KIsaAdapterInfo::zekCapabilityToText(static_cast<Type>(9)));
}

TEST(KIsaAdapterInfo, SavedImageIsWholeAndReadsBack)
{
    FILE* file = tmpfile();
    ASSERT_NE(nullptr, file);
    KIsaAdapterInfo out = onlineAdapter();
    out.fcPortCount = 2;
    out.hostInfo.hostType = KHostInfo::HOST_TYPE_WINDOWS;
    set(out.hostInfo.windowsHostInfo.hostName, "WINHOST");
    std::string error;
    ASSERT_TRUE(out.serialize(true, file, error));
    EXPECT_EQ(1496L - 20L, ftell(file));
    rewind(file);
    KIsaAdapterInfo in;
    ASSERT_TRUE(in.serialize(false, file, error));
    EXPECT_EQ(2u, in.fcPortCount);
    EXPECT_EQ(out.displayText(), in.displayText());
    EXPECT_EQ("WINHOST", in.hostInfo.hostLabelText(false, "", false));
    fclose(file);
}

TEST(KIsaAdapterInfo, CopyTakesFieldsAndHost)
{
    KIsaAdapterInfo source = onlineAdapter();
    source.bClusterMember = true;
    source.reserved = 0xDEAD;
    KIsaAdapterInfo copy(source);
    EXPECT_TRUE(copy.isClusterMember());
    EXPECT_EQ(0xDEADu, copy.reserved);
    EXPECT_EQ(source.displayText(), copy.displayText());
    copy.init();
    EXPECT_FALSE(copy.isClusterMember());
    EXPECT_EQ(0, copy.adapterState);
}

} // namespace
