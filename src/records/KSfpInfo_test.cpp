#include "records/KSfpInfo.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

namespace {

void putWord(KSfpInfo& sfp, unsigned int index, unsigned int value)
{
    sfp.sfpDataRef(index) = static_cast<unsigned char>(value >> 8);
    sfp.sfpDataRef(index + 1) = static_cast<unsigned char>(value & 0xFF);
}

// Temperature and voltage normal, Tx bias above its high alarm, Tx power
// above its high warning, Rx power all zero.
KSfpInfo diagnostics()
{
    KSfpInfo sfp;
    sfp.portIndex = 1;
    strcpy(sfp.vendorName, "ACME OPTICS");
    strcpy(sfp.serialNumber, "SN12345");
    sfp.driverStatus = KSfpInfo::DRIVER_STATUS_NO_ERROR;
    putWord(sfp, 352, 0x1940); // 25.25 C
    putWord(sfp, 256, 0x5000); // high alarm 80 C
    putWord(sfp, 258, 0xF600); // low alarm, below zero
    putWord(sfp, 260, 0x4600); // high warning 70 C
    putWord(sfp, 262, 0x0000); // low warning 0 C
    putWord(sfp, 354, 33000);
    putWord(sfp, 264, 36000);
    putWord(sfp, 266, 29000);
    putWord(sfp, 268, 35000);
    putWord(sfp, 270, 31000);
    putWord(sfp, 356, 9000);
    putWord(sfp, 272, 8000);
    putWord(sfp, 274, 1000);
    putWord(sfp, 276, 7000);
    putWord(sfp, 278, 2000);
    putWord(sfp, 358, 6500);
    putWord(sfp, 280, 7000);
    putWord(sfp, 282, 1000);
    putWord(sfp, 284, 6000);
    putWord(sfp, 286, 2000);
    return sfp;
}

} // namespace

TEST(KSfpInfo, FullText)
{
    EXPECT_EQ(diagnostics().displayText(),
              "    SFP Port = 2"
              "\n    Vendor Name = ACME OPTICS"
              "\n    Serial Number = SN12345"
              "\n    Driver Status = No error\n"
              "\n    SFP General Status\n"
              "\t \t\tTemperature(C)\tVoltage(V)\tTx Bia(mA)\tTx Power(mW)\tRx Power(mW)"
              "\n    Value\t\t25.250000\t3.300000\t0.900000\t0.650000\t0.000000"
              "\n    Status   \t\tNormal\t\tNormal\t\tFault\t\tWarning\t\tNormal"
              "\n    High Alarm   \t80.000000\t3.600000\t0.800000\t0.700000\t0.000000"
              "\n    High Warning \t70.000000\t3.500000\t0.700000\t0.600000\t0.000000"
              "\n    Low  Warning \t0.000000\t3.100000\t0.200000\t0.200000\t0.000000"
              "\n    Low  Alarm   \t-10.003906\t2.900000\t0.100000\t0.100000\t0.000000");
}

TEST(KSfpInfo, NegativeTemperatureTakesTheComplementOfTheLowByte)
{
    EXPECT_EQ(PBase::floatToText(getTemp(static_cast<char>(0xF3), 0x00)), "-13.003906");
}

TEST(KSfpInfo, PositiveTemperatureTakesTheLowByteAsSigned)
{
    EXPECT_EQ(PBase::floatToText(getTemp(0x19, 0x40)), "25.250000");
    EXPECT_EQ(PBase::floatToText(getTemp(0x19, static_cast<char>(0x80))), "24.500000");
}

TEST(KSfpInfo, ValueScaleIsTheSameForEveryFigure)
{
    EXPECT_EQ(PBase::floatToText(getValue(static_cast<char>(0xFF), static_cast<char>(0xFF))), "6.553500");
    EXPECT_EQ(PBase::floatToText(getValue(0x00, 0x01)), "0.000100");
    EXPECT_EQ(PBase::floatToText(getValue(0x00, 0x00)), "0.000000");
}

TEST(KSfpInfo, StatusAgainstTheLimits)
{
    EXPECT_EQ(getSFPStatus(5.0f, 4.0f, 3.0f, 1.0f, 0.0f), "Fault");
    EXPECT_EQ(getSFPStatus(-1.0f, 4.0f, 3.0f, 1.0f, 0.0f), "Fault");
    EXPECT_EQ(getSFPStatus(3.5f, 4.0f, 3.0f, 1.0f, 0.0f), "Warning");
    EXPECT_EQ(getSFPStatus(0.5f, 4.0f, 3.0f, 1.0f, 0.0f), "Warning");
    EXPECT_EQ(getSFPStatus(2.0f, 4.0f, 3.0f, 1.0f, 0.0f), "Normal");
    EXPECT_EQ(getSFPStatus(4.0f, 4.0f, 3.0f, 1.0f, 0.0f), "Warning");
    EXPECT_EQ(getSFPStatus(3.0f, 4.0f, 3.0f, 1.0f, 0.0f), "Normal");
}

TEST(KSfpInfo, DriverStatusTexts)
{
    const char* expected[8] = {"No error",
                               "Driver not ready",
                               "Driver no resource",
                               "Data transfer error",
                               "Firmware no resource",
                               "Read timeout",
                               "SFP not present",
                               "Unknown"};
    for (uint32_t status = 0; status < 8; ++status)
        EXPECT_EQ(KSfpInfo::driverStatusToText(status), expected[status]);
    EXPECT_EQ(KSfpInfo::driverStatusToText(8), "");
    EXPECT_EQ(KSfpInfo::driverStatusToText(0xFFFFFFFF), "");
}

TEST(KSfpInfo, FreshRecordHasUnknownDriverStatus)
{
    KSfpInfo sfp;
    EXPECT_EQ(sfp.driverStatus, 7u);
    const std::string head =
        "    SFP Port = 1\n    Vendor Name = \n    Serial Number = \n    Driver Status = Unknown\n";
    EXPECT_EQ(sfp.displayText().substr(0, head.size()), head);
    sfp.driverStatus = 8;
    EXPECT_NE(sfp.displayText().find("    Driver Status = \n\n"), std::string::npos);
}

TEST(KSfpInfo, DataIndexBeyondTheMemoryThrows)
{
    KSfpInfo sfp;
    sfp.sfpDataRef(511) = 0x5A;
    EXPECT_EQ(sfp.sfpData[511], 0x5A);
    EXPECT_THROW(sfp.sfpDataRef(512), std::out_of_range);
    const KSfpInfo& constSfp = sfp;
    EXPECT_EQ(constSfp.sfpDataRef(511), 0x5A);
    EXPECT_THROW(constSfp.sfpDataRef(100000), std::out_of_range);
}

TEST(KSfpInfo, CopyAndInit)
{
    KSfpInfo copy(diagnostics());
    EXPECT_EQ(copy.displayText(), diagnostics().displayText());
    copy.init();
    EXPECT_EQ(copy.sfpData[352], 0);
    EXPECT_EQ(copy.vendorName[0], 0);
    EXPECT_EQ(copy.driverStatus, 7u);
    EXPECT_EQ(copy.getSerialSize(), 556u);
}
