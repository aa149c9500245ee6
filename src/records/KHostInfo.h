// The host an adapter sits in: its kind, and the description that kind of
// host reports.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "records/PBase.h"

class KLinuxHostInfo : public PBase {
public:
    static constexpr unsigned int SYSTEM_NAME_SIZE = 129;
    static constexpr unsigned int FIELD_SIZE = 65;

    KLinuxHostInfo();
    KLinuxHostInfo(const KLinuxHostInfo& other);
    KLinuxHostInfo& operator=(const KLinuxHostInfo& other);
    ~KLinuxHostInfo() override;

    void init() override;
    std::string displayText() const override;
    // A short name for the host; the argument is not used.
    std::string hostLabelText(const std::string& unused) const;

    char systemName[SYSTEM_NAME_SIZE];
    char nodeName[FIELD_SIZE];
    char osVersion[FIELD_SIZE];
    char osBuildDate[FIELD_SIZE];
    char machineName[FIELD_SIZE];
    char domainName[FIELD_SIZE];
    char driverVersion[FIELD_SIZE];
};

static_assert(sizeof(KLinuxHostInfo) == 544, "Linux host image");

class KWindowsHostInfo : public PBase {
public:
    static constexpr unsigned int SYSTEM_INFO_SIZE = 129;
    static constexpr unsigned int FIELD_SIZE = 65;

    KWindowsHostInfo();
    KWindowsHostInfo(const KWindowsHostInfo& other);
    KWindowsHostInfo& operator=(const KWindowsHostInfo& other);
    ~KWindowsHostInfo() override;

    void init() override;
    std::string displayText() const override;
    // A short name for the host; the argument is not used.
    std::string hostLabelText(const std::string& unused) const;

    char systemInfo[SYSTEM_INFO_SIZE];
    char hostName[FIELD_SIZE];
    char driverVersion[FIELD_SIZE];
};

static_assert(sizeof(KWindowsHostInfo) == 280, "Windows host image");

class KHostInfo : public PBase {
public:
    enum ISA_ADAPTER_HOST_TYPE : int32_t {
        HOST_TYPE_UNKNOWN = 0,
        HOST_TYPE_BSD = 1,
        HOST_TYPE_LINUX = 2,
        HOST_TYPE_VMWARE = 3,
        HOST_TYPE_WINDOWS = 4,
        HOST_TYPE_SOLARIS = 5,
    };

    KHostInfo();
    KHostInfo(const KHostInfo& other);
    KHostInfo& operator=(const KHostInfo& other);
    ~KHostInfo() override;

    void init() override;
    bool serialize(bool write, FILE* file, std::string& error) override;
    std::string displayText() const override;

    static std::string hostTypeToText(ISA_ADAPTER_HOST_TYPE type);
    std::string hostLabelText(bool isRemote, const std::string& remoteText, bool plainLabel) const;

    // Takes the fields out of the image of another host record, leaving the
    // virtual-table pointers of this one alone.
    void assignFromImage(const void* image);

    ISA_ADAPTER_HOST_TYPE hostType;
    KLinuxHostInfo linuxHostInfo;     // for BSD, Linux, VMware and Solaris hosts
    KWindowsHostInfo windowsHostInfo; // for Windows hosts
};

static_assert(sizeof(KHostInfo) == 848, "host image");
