#include "records/KNvdimmInfo.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(KNvdimmInfo, SuperCapHealthTable)
{
    EXPECT_EQ(KNvdimmInfo::superCapHealthToText(KNvdimmInfo::SUPERCAP_HEALTH_OVERCHARGED), "Overcharged");
    EXPECT_EQ(KNvdimmInfo::superCapHealthToText(KNvdimmInfo::SUPERCAP_HEALTH_END_OF_LIFE), "End of Life");
    EXPECT_EQ(KNvdimmInfo::superCapHealthToText(KNvdimmInfo::SUPERCAP_HEALTH_WEAK), "Weak");
    EXPECT_EQ(KNvdimmInfo::superCapHealthToText(KNvdimmInfo::SUPERCAP_HEALTH_GOOD), "Good");
    EXPECT_EQ(KNvdimmInfo::superCapHealthToText(KNvdimmInfo::SUPERCAP_HEALTH_UNKNOWN), "Unknown");
    EXPECT_EQ(KNvdimmInfo::superCapHealthToText(static_cast<KNvdimmInfo::KISA_SUPERCAP_HEALTH>(-1)), "Unknown");
}

TEST(KNvdimmInfo, NvdimmStatusBits)
{
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(1), "Not Armed");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(2), "Armed");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(4), "NVDIMM Update in Progress");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(8), "Super Cap Update in Progress");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(16), "Panic Deteced");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(0x1F),
              "Not Armed, Armed, NVDIMM Update in Progress, Super Cap Update in Progress, Panic Deteced");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(0), "Unknown");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(32), "Unknown");
    EXPECT_EQ(KNvdimmInfo::nvdimmStatusToText(34), "Armed");
}

TEST(KNvdimmInfo, AdditionalStatusBits)
{
    EXPECT_EQ(KNvdimmInfo::nvdimmAdditionalStatusToText(1), "Free Flash Block Warn");
    EXPECT_EQ(KNvdimmInfo::nvdimmAdditionalStatusToText(2), "Free Flash Block Fail");
    EXPECT_EQ(KNvdimmInfo::nvdimmAdditionalStatusToText(4), "Restore Failed");
    EXPECT_EQ(KNvdimmInfo::nvdimmAdditionalStatusToText(5), "Free Flash Block Warn, Restore Failed");
    EXPECT_EQ(KNvdimmInfo::nvdimmAdditionalStatusToText(0), "Unknown");
    EXPECT_EQ(KNvdimmInfo::nvdimmAdditionalStatusToText(8), "Unknown");
}

TEST(KNvdimmInfo, SuperCapStatusIsChargeStateThenFlags)
{
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(0), "Idle");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(1), "Charging");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(2), "Discharged");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(3), "Self Test");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(4), "Idle, Full Charged");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(128), "Idle, Initialized");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(129), "Charging, Initialized");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(0x87), "Self Test, Full Charged, Initialized");
    EXPECT_EQ(KNvdimmInfo::superCapStatusToText(0x48), "Idle");
}

TEST(KNvdimmInfo, PowerStateBits)
{
    EXPECT_EQ(KNvdimmInfo::superCapPowerStateToText(1), "Good");
    EXPECT_EQ(KNvdimmInfo::superCapPowerStateToText(2), "Backup output power good");
    EXPECT_EQ(KNvdimmInfo::superCapPowerStateToText(3), "Good, Backup output power good");
    EXPECT_EQ(KNvdimmInfo::superCapPowerStateToText(0), "Unknown");
    EXPECT_EQ(KNvdimmInfo::superCapPowerStateToText(4), "Unknown");
}

TEST(KNvdimmInfo, WarningBits)
{
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(1), "Under Capacitance");
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(2), "Over ESR");
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(4), "Over Current Charging");
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(8), "Over Current Discharging");
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(16), "Supercap Fault");
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(18), "Over ESR, Supercap Fault");
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(0), "None");
    EXPECT_EQ(KNvdimmInfo::superCapWarningToText(0x20), "None");
}

TEST(KNvdimmInfo, BlankRecord)
{
    KNvdimmInfo info;
    EXPECT_EQ(info.superCapHealth, KNvdimmInfo::SUPERCAP_HEALTH_UNKNOWN);
    EXPECT_EQ(info.superCapStatus, 129u);
    EXPECT_EQ(info.displayText(),
              "    NVDIMM and Super Cap Information\n"
              "\n    NVDIMM Firmware Version:    "
              "\n    NVDIMM Packaged Version:    "
              "\n    NVDIMM Temperature:         0C"
              "\n    NVDIMM Serial Number:       "
              "\n    NVDIMM Part Number:         "
              "\n    NVDIMM Status:              "
              " 0x0 (Unknown)"
              "\n    Super Cap Detected:         False"
              "\n    Super Cap Serial Number:\t   "
              "\n    Super Cap Part Number:      "
              "\n    Super Cap Firmware Revision:"
              " 0x0"
              "\n    Super Cap Packaged Revision:"
              " 0x0"
              "\n    Super Cap Status:           "
              " 0x81 (Charging, Initialized)"
              "\n    Super Cap Power Status:     "
              " 0x0 (Unknown)"
              "\n    Super Cap Health:           "
              " 0x4 (Unknown)"
              "\n    Super Cap Warning:          "
              " 0x0 (None)"
              "\n    Super Cap Charged Percent:  0%"
              "\n\n");
}

TEST(KNvdimmInfo, ArmedModuleWithSuperCap)
{
    KNvdimmInfo info;
    memcpy(info.firmwareVersion, "1.2", 3); // fills the field with no NUL
    memcpy(info.packagedVersion, "07", 3);
    info.temperature = 37;
    strcpy(info.serialNumber, "NV-0001");
    strcpy(info.partNumber, "NVD-8GB");
    info.nvdimmStatus = 2;
    info.nvdimmAdditionalStatus = 4;
    info.superCapDetected = true;
    strcpy(info.superCapSerialNumber, "SC-77");
    strcpy(info.superCapPartNumber, "SCP-1");
    info.superCapFirmwareRevision = 0x1A;
    info.superCapPackagedRevision = 0x2B;
    info.superCapStatus = 0x84;
    info.superCapPowerState = 3;
    info.superCapHealth = KNvdimmInfo::SUPERCAP_HEALTH_GOOD;
    info.superCapWarning = 0;
    info.superCapChargedPercent = 100;
    EXPECT_EQ(info.displayText(),
              "    NVDIMM and Super Cap Information\n"
              "\n    NVDIMM Firmware Version:    1.2"
              "\n    NVDIMM Packaged Version:    07"
              "\n    NVDIMM Temperature:         37C"
              "\n    NVDIMM Serial Number:       NV-0001"
              "\n    NVDIMM Part Number:         NVD-8GB"
              "\n    NVDIMM Status:              "
              " 0x2 (Armed)"
              "\n    Super Cap Detected:         True"
              "\n    Super Cap Serial Number:\t   SC-77"
              "\n    Super Cap Part Number:      SCP-1"
              "\n    Super Cap Firmware Revision:"
              " 0x1a"
              "\n    Super Cap Packaged Revision:"
              " 0x2b"
              "\n    Super Cap Status:           "
              " 0x84 (Idle, Full Charged, Initialized)"
              "\n    Super Cap Power Status:     "
              " 0x3 (Good, Backup output power good)"
              "\n    Super Cap Health:           "
              " 0x3 (Good)"
              "\n    Super Cap Warning:          "
              " 0x0 (None)"
              "\n    Super Cap Charged Percent:  100%"
              "\n\n");
}

TEST(KNvdimmInfo, AdditionalStatusOnlyWhenNotArmed)
{
    KNvdimmInfo info;
    info.nvdimmStatus = 0x11;
    info.nvdimmAdditionalStatus = 3;
    EXPECT_NE(info.displayText().find("\n    NVDIMM Status:              "
                                      " 0x11 (Not Armed, Panic Deteced)"
                                      "\n    NVDIMM Additional Status:   "
                                      " 0x3 (Free Flash Block Warn, Free Flash "
                                      "Block Fail)"
                                      "\n    Super Cap Detected:"),
              std::string::npos);
    info.nvdimmStatus = 0x10;
    EXPECT_EQ(info.displayText().find("Additional"), std::string::npos);
}

TEST(KNvdimmInfo, CopyAndBlank)
{
    KNvdimmInfo info;
    info.superCapChargedPercent = 55;
    strcpy(info.superCapSerialNumber, "X");
    KNvdimmInfo copy;
    copy = info;
    EXPECT_EQ(copy.displayText(), info.displayText());
    copy.init();
    EXPECT_EQ(copy.superCapChargedPercent, 0);
    EXPECT_EQ(copy.superCapStatus, 129u);
    EXPECT_EQ(copy.getSerialOffset(), 20u);
    EXPECT_EQ(copy.getSerialSize(), 308u);
}
