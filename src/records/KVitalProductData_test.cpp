#include "records/KVitalProductData.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

template <size_t N>
void set(char (&field)[N], const char* text)
{
    PBase::textToCharField(field, N, text);
}

KVitalProductData productData()
{
    KVitalProductData vpd;
    set(vpd.serialNumber, "SN0001");
    set(vpd.partNumber, "ZEK-8200-2P");
    set(vpd.firmwareVersion, "4.2.0");
    set(vpd.efiDriverVersion, "1.5");
    set(vpd.biosVersion, "2.0");
    set(vpd.fcodeVersion, "3.1");
    set(vpd.productIdentifier, "Caching FC adapter");
    set(vpd.miscInformation, "rev B");
    set(vpd.manufacturingId, "M-77");
    vpd.adapterPath.init(0x12AB, 0, true, PIpAddress(), KIsaAdapterPath::ADAPTER_TYPE_1);
    return vpd;
}

TEST(KVitalProductData, TextWithBothRules)
{
    const std::string rule(78, '-');
    std::string expected = rule +
        "\nZEK             : Adapter ID          = 12AB, (Local device 0)"
        "\nSN              : SN0001"
        "\nZEK Model       : ZEK-8200-2P"
        "\nZEK Desc.       : Caching FC adapter"
        "\nFW Version      : 4.2.0" +
        rule +
        "\nProduct Identifier                        : Caching FC adapter"
        "\nPart Number                               : ZEK-8200-2P"
        "\nSerial Number                             : SN0001"
        "\nMisc. Information                         : rev B"
        "\nManufacturing Id                          : M-77"
        "\nEFI Driver Version                        : 1.5"
        "\nFirmware Version                          : 4.2.0"
        "\nBIOS Version                              : 2.0"
        "\nFCode Version                             : 3.1"
        "\n";
    EXPECT_EQ(expected, productData().displayText());
}

TEST(KVitalProductData, SavesThePathFirstThenTheTextBlock)
{
    FILE* file = tmpfile();
    ASSERT_NE(nullptr, file);
    KVitalProductData out = productData();
    std::string error;
    ASSERT_TRUE(out.serialize(true, file, error));
    EXPECT_EQ(24L + 1668L + 1196L, ftell(file));
    fseek(file, 24 + 1668, SEEK_SET);
    char serial[7] = {};
    ASSERT_EQ(6u, fread(serial, 1, 6, file));
    EXPECT_STREQ("SN0001", serial);
    rewind(file);
    KVitalProductData in;
    ASSERT_TRUE(in.serialize(false, file, error));
    EXPECT_EQ(out.displayText(), in.displayText());
    fclose(file);
}

TEST(KVitalProductData, CopyAndInit)
{
    KVitalProductData copy(productData());
    EXPECT_EQ(productData().displayText(), copy.displayText());
    copy.init();
    EXPECT_EQ("", PBase::charFieldToText(copy.manufacturingId));
    EXPECT_EQ("FFFFFFFFFFFFFFFF", copy.adapterPath.hbaIDText());
}

} // namespace
