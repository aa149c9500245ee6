#include "records/KHostPcieInfo.h"

#include <gtest/gtest.h>

namespace {

KHostPcieInfo busyAdapter()
{
    KHostPcieInfo info;
    info.minReadLatency = 1500;
    info.maxReadLatency = 25000;
    info.avgReadLatency = 2750;
    info.readIoOutstanding = 4;
    info.minWriteLatency = 100;
    info.maxWriteLatency = 9999;
    info.avgWriteLatency = 0;
    info.writeIoOutstanding = 0;
    info.readIoCount = 123456;
    info.minReadIoSize = 512;
    info.maxReadIoSize = 1048576;
    info.avgReadIoSize = 4096;
    info.avgReadIosPerSec = 2500;
    info.avgReadBandwidth = 10485760;
    info.writeIoCount = 7;
    info.minWriteIoSize = 4096;
    info.maxWriteIoSize = 65536;
    info.avgWriteIoSize = 8192;
    info.avgWriteIosPerSec = 12;
    info.avgWriteBandwidth = 2048;
    return info;
}

} // namespace

TEST(KHostPcieInfo, LatencyIsShownInMilliseconds)
{
    EXPECT_EQ(KHostPcieInfo::latencyText(1500), "1.500");
    EXPECT_EQ(KHostPcieInfo::latencyText(0), "0.000");
    EXPECT_EQ(KHostPcieInfo::latencyText(1), "0.001");
    EXPECT_EQ(KHostPcieInfo::latencyText(4294967295u), "4294967.500"); // single precision
}

TEST(KHostPcieInfo, HostIoSection)
{
    EXPECT_EQ(
        busyAdapter().displayText(),
        "\n\n[Host IO Statistics]\n\n"
        "Read  Latency:                Min:   1.500ms,  Max:  25.000ms,  Avg:   2.750ms;  Outstanding IO: 4\n"
        "Write Latency:                Min:   0.100ms,  Max:   9.999ms,  Avg:   0.000ms;  Outstanding IO: 0\n"
        "\n"
        "Host Reads:          123456,  Min:  512Bytes,  Max:       1MB,  Avg:       4KB,  IOPS:  2500,  KBs: 10240\n"
        "Host Writes:              7,  Min:       4KB,  Max:      64KB,  Avg:       8KB,  IOPS:    12,  KBs: 2    \n");
}

TEST(KHostPcieInfo, ShortHostSection)
{
    EXPECT_EQ(busyAdapter().displayText2(),
              "    [Host Statistics]\n"
              "\n    Average Read IOs/Sec              = 2500"
              "\n    Min/Max/Average Read IO Size      = 512Bytes / 1MB / 4KB"
              "\n    Average Read Bandwidth            = 10MB / sec"
              "\n    Min/Max/Average Read IO Latency   = 1.500 / 25.000 / 2.750 milliseconds"
              "\n    Average Write IOs/Sec             = 12"
              "\n    Min/Max/Average Write IO Size     = 4KB / 64KB / 8KB"
              "\n    Average Write Bandwidth           = 2KB / sec"
              "\n    Min/Max/Average Write IO Latency  = 0.100 / 9.999 / 0.000 milliseconds"
              "\n\n");
}

TEST(KHostPcieInfo, BlankRecordIsAllZero)
{
    KHostPcieInfo info;
    for (unsigned int i = 0; i < KHostPcieInfo::FIELD_COUNT; ++i)
        EXPECT_EQ(info.fieldAt(i), 0u) << i;
    EXPECT_EQ(info.displayText2(),
              "    [Host Statistics]\n"
              "\n    Average Read IOs/Sec              = 0"
              "\n    Min/Max/Average Read IO Size      = 0 / 0 / 0"
              "\n    Average Read Bandwidth            = 0 / sec"
              "\n    Min/Max/Average Read IO Latency   = 0.000 / 0.000 / 0.000 milliseconds"
              "\n    Average Write IOs/Sec             = 0"
              "\n    Min/Max/Average Write IO Size     = 0 / 0 / 0"
              "\n    Average Write Bandwidth           = 0 / sec"
              "\n    Min/Max/Average Write IO Latency  = 0.000 / 0.000 / 0.000 milliseconds"
              "\n\n");
}

TEST(KHostPcieInfo, FieldsByNumberFollowTheImage)
{
    KHostPcieInfo info;
    uint32_t* words = &info.readDiffTime;
    for (unsigned int i = 0; i < KHostPcieInfo::FIELD_COUNT; ++i)
        words[i] = 1000 + i;
    for (unsigned int i = 0; i < KHostPcieInfo::FIELD_COUNT; ++i)
        EXPECT_EQ(info.fieldAt(i), 1000 + i) << i;
    EXPECT_EQ(info.fieldAt(26), 0u);
    EXPECT_EQ(info.avgReadIoSize, 1009u);
    EXPECT_EQ(info.avgWriteIoSize, 1019u);
    EXPECT_EQ(info.writeIoOutstanding, 1025u);
}

TEST(KHostPcieInfo, CsvTitles)
{
    const char* const titles[] = {
        "Read Diff Time,",
        "Write Diff Time,",
        "Read IO Count,",
        "Read Bytes Count,",
        "Write IO Count,",
        "Write Bytes Count,",
        "Avg Read IOs Per Sec,",
        "Min Read IO Size Bytes,",
        "Max Read IO Size Bytes,",
        "Avg Read IO Size Bytes,",
        "Average Read Bandwidth (Bytes),",
        "Read IO Delay,",
        "Min Read IO Latency (us),",
        "Max Read IO Latency (us),",
        "Avg Read IO Latency (us),",
        "Current Read IO Outstanding,",
        "Avg Write IOs Per Sec,",
        "Min Write IO Size Bytes,",
        "Max Write IO Size Bytes,",
        "Avg Write IO Size Bytes,",
        "Average Write Bandwidth (Bytes),",
        "Write IO Delay,",
        "Min Write IO Latency (us),",
        "Max Write IO Latency (us),",
        "Avg Write IO Latency (us),",
        "Current Write IO Outstanding,",
    };
    for (unsigned int i = 0; i < KHostPcieInfo::FIELD_COUNT; ++i)
        EXPECT_EQ(KHostPcieInfo::csvTitleAt(i), titles[i]) << i;
    EXPECT_EQ(KHostPcieInfo::csvTitleAt(26), "");
}

TEST(KHostPcieInfo, CopyAndSavedArea)
{
    KHostPcieInfo info = busyAdapter();
    KHostPcieInfo copy(info);
    EXPECT_EQ(copy.displayText(), info.displayText());
    EXPECT_EQ(copy.getSerialOffset(), 20u);
    EXPECT_EQ(copy.getSerialSize(), 108u);
}
