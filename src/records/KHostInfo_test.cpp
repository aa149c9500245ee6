#include "records/KHostInfo.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

KLinuxHostInfo linuxHost(const char* node, const char* domain)
{
    KLinuxHostInfo host;
    PBase::textToCharField(host.systemName, sizeof host.systemName, "Linux");
    PBase::textToCharField(host.nodeName, sizeof host.nodeName, node);
    PBase::textToCharField(host.osVersion, sizeof host.osVersion, "6.1.0-13-amd64");
    PBase::textToCharField(host.osBuildDate, sizeof host.osBuildDate, "2023-09-29");
    PBase::textToCharField(host.machineName, sizeof host.machineName, "x86_64");
    PBase::textToCharField(host.domainName, sizeof host.domainName, domain);
    PBase::textToCharField(host.driverVersion, sizeof host.driverVersion, "3.2.1");
    return host;
}

KHostInfo hostOfType(int type)
{
    KHostInfo host;
    host.hostType = static_cast<KHostInfo::ISA_ADAPTER_HOST_TYPE>(type);
    host.linuxHostInfo = linuxHost("node7", "lab");
    PBase::textToCharField(host.windowsHostInfo.systemInfo, sizeof host.windowsHostInfo.systemInfo, "Server 2012");
    PBase::textToCharField(host.windowsHostInfo.hostName, sizeof host.windowsHostInfo.hostName, "WINHOST");
    PBase::textToCharField(host.windowsHostInfo.driverVersion, sizeof host.windowsHostInfo.driverVersion, "9.9");
    return host;
}

const char kLinuxText[] = "        System name:         Linux\n"
                          "        Node name:           node7\n"
                          "        OS version:          6.1.0-13-amd64\n"
                          "        OS build date:       2023-09-29\n"
                          "        Machine name:        x86_64\n"
                          "        Domain name:         lab\n"
                          "        Driver version:      3.2.1\n";

const char kWindowsText[] = "        System Info:     Server 2012\n"
                            "        Host name:      WINHOST\n"
                            "        Driver version: 9.9\n";

TEST(KLinuxHostInfo, LocalhostWithoutDomainIsLabelledByKernelVersionAndBuildDate)
{
    EXPECT_EQ("_6.1.0-13-amd64_2023-09-29", linuxHost("localhost", "(none)").hostLabelText("ignored"));
}

TEST(KLinuxHostInfo, LabelPrefersNodeNameThenDomain)
{
    EXPECT_EQ("node7", linuxHost("node7", "(none)").hostLabelText(""));
    EXPECT_EQ("lab.example", linuxHost("localhost", "lab.example").hostLabelText(""));
    // Only the exact word counts.
    EXPECT_EQ("Localhost", linuxHost("Localhost", "(none)").hostLabelText(""));
}

TEST(KLinuxHostInfo, SevenLines)
{
    EXPECT_EQ(kLinuxText, linuxHost("node7", "lab").displayText());
}

TEST(KWindowsHostInfo, LabelPrefersHostNameThenSystemInfo)
{
    KWindowsHostInfo host;
    EXPECT_EQ("Windows host", host.hostLabelText(""));
    PBase::textToCharField(host.systemInfo, sizeof host.systemInfo, "Server 2012");
    EXPECT_EQ("Server 2012", host.hostLabelText(""));
    PBase::textToCharField(host.hostName, sizeof host.hostName, "WINHOST");
    EXPECT_EQ("WINHOST", host.hostLabelText(""));
}

TEST(KWindowsHostInfo, ThreeLines)
{
    EXPECT_EQ(kWindowsText, hostOfType(4).windowsHostInfo.displayText());
}

TEST(KHostInfo, HostTypeTable)
{
    const char* texts[] = {"Unknown", "BSD", "Linux", "VMware", "Windows", "Unknown", "Unknown"};
    for (int i = 0; i <= 6; ++i) {
        EXPECT_EQ(texts[i], KHostInfo::hostTypeToText(static_cast<KHostInfo::ISA_ADAPTER_HOST_TYPE>(i))) << i;
    }
}

TEST(KHostInfo, TextForEveryHostType)
{
    EXPECT_EQ("        *** Unknown host type ***\n", hostOfType(0).displayText());
    EXPECT_EQ(std::string("        BSD Host\n") + kLinuxText, hostOfType(1).displayText());
    EXPECT_EQ(std::string("        Linux Host\n") + kLinuxText, hostOfType(2).displayText());
    EXPECT_EQ(std::string("        VMware Host\n") + kLinuxText, hostOfType(3).displayText());
    EXPECT_EQ(std::string("        Windows Host\n") + kWindowsText, hostOfType(4).displayText());
    EXPECT_EQ(std::string("        Solaris Host\n") + kLinuxText, hostOfType(5).displayText());
    EXPECT_EQ("        *** UNKNOWN host type ***\n", hostOfType(6).displayText());
}

TEST(KHostInfo, PlainLabelIsRemoteTextOrLocalhost)
{
    KHostInfo host = hostOfType(2);
    EXPECT_EQ("127.0.10.1", host.hostLabelText(true, "127.0.10.1", true));
    EXPECT_EQ("localhost", host.hostLabelText(false, "127.0.10.1", true));
}

TEST(KHostInfo, LabelByHostType)
{
    EXPECT_EQ("Unknown host", hostOfType(0).hostLabelText(false, "", false));
    EXPECT_EQ("node7", hostOfType(1).hostLabelText(false, "", false));
    EXPECT_EQ("node7", hostOfType(2).hostLabelText(true, "remote", false));
    EXPECT_EQ("node7", hostOfType(3).hostLabelText(false, "", false));
    EXPECT_EQ("WINHOST", hostOfType(4).hostLabelText(false, "", false));
    // Solaris has a Linux-style record but no label of its own.
    EXPECT_EQ("UNKNOWN host", hostOfType(5).hostLabelText(false, "", false));
}

TEST(KHostInfo, SavedImageReadsBackWithoutLosingTheRecordsBehaviour)
{
    FILE* file = tmpfile();
    ASSERT_NE(nullptr, file);
    KHostInfo out = hostOfType(2);
    std::string error;
    ASSERT_TRUE(out.serialize(true, file, error));
    EXPECT_EQ(static_cast<long>(sizeof(KHostInfo) - 20), ftell(file));
    rewind(file);
    KHostInfo in;
    ASSERT_TRUE(in.serialize(false, file, error));
    EXPECT_EQ(out.displayText(), in.displayText());
    EXPECT_EQ(kWindowsText, in.windowsHostInfo.displayText());
    fclose(file);
}

TEST(KHostInfo, CopyAndInit)
{
    KHostInfo copy(hostOfType(4));
    EXPECT_EQ(std::string("        Windows Host\n") + kWindowsText, copy.displayText());
    copy.init();
    EXPECT_EQ(KHostInfo::HOST_TYPE_UNKNOWN, copy.hostType);
    EXPECT_EQ("", PBase::charFieldToText(copy.windowsHostInfo.hostName));
}

} // namespace
