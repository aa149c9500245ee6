#include "records/KHostPcieInfo.h"

ZEK_ASSERT_FIELD_OFFSET(KHostPcieInfo, readDiffTime, 20);
ZEK_ASSERT_FIELD_OFFSET(KHostPcieInfo, writeIoOutstanding, 20 + 25 * 4);

namespace {

struct FieldColumn {
    uint32_t KHostPcieInfo::*field;
    const char* csvTitle;
};

const FieldColumn kFields[KHostPcieInfo::FIELD_COUNT] = {
    {&KHostPcieInfo::readDiffTime, "Read Diff Time,"},
    {&KHostPcieInfo::writeDiffTime, "Write Diff Time,"},
    {&KHostPcieInfo::readIoCount, "Read IO Count,"},
    {&KHostPcieInfo::readBytesCount, "Read Bytes Count,"},
    {&KHostPcieInfo::writeIoCount, "Write IO Count,"},
    {&KHostPcieInfo::writeBytesCount, "Write Bytes Count,"},
    {&KHostPcieInfo::avgReadIosPerSec, "Avg Read IOs Per Sec,"},
    {&KHostPcieInfo::minReadIoSize, "Min Read IO Size Bytes,"},
    {&KHostPcieInfo::maxReadIoSize, "Max Read IO Size Bytes,"},
    {&KHostPcieInfo::avgReadIoSize, "Avg Read IO Size Bytes,"},
    {&KHostPcieInfo::avgReadBandwidth, "Average Read Bandwidth (Bytes),"},
    {&KHostPcieInfo::readIoDelay, "Read IO Delay,"},
    {&KHostPcieInfo::minReadLatency, "Min Read IO Latency (us),"},
    {&KHostPcieInfo::maxReadLatency, "Max Read IO Latency (us),"},
    {&KHostPcieInfo::avgReadLatency, "Avg Read IO Latency (us),"},
    {&KHostPcieInfo::readIoOutstanding, "Current Read IO Outstanding,"},
    {&KHostPcieInfo::avgWriteIosPerSec, "Avg Write IOs Per Sec,"},
    {&KHostPcieInfo::minWriteIoSize, "Min Write IO Size Bytes,"},
    {&KHostPcieInfo::maxWriteIoSize, "Max Write IO Size Bytes,"},
    {&KHostPcieInfo::avgWriteIoSize, "Avg Write IO Size Bytes,"},
    {&KHostPcieInfo::avgWriteBandwidth, "Average Write Bandwidth (Bytes),"},
    {&KHostPcieInfo::writeIoDelay, "Write IO Delay,"},
    {&KHostPcieInfo::minWriteLatency, "Min Write IO Latency (us),"},
    {&KHostPcieInfo::maxWriteLatency, "Max Write IO Latency (us),"},
    {&KHostPcieInfo::avgWriteLatency, "Avg Write IO Latency (us),"},
    {&KHostPcieInfo::writeIoOutstanding, "Current Write IO Outstanding,"},
};

std::string sizeText(uint32_t bytes)
{
    return PBase::longlongToMByteText(bytes);
}

std::string joined(const std::string& a, const std::string& b, const std::string& c)
{
    return a + " / " + b + " / " + c;
}

std::string latencyLine(const char* label, const KHostPcieInfo::Direction& d)
{
    char line[256];
    snprintf(line, sizeof line, "%-29s Min: %7sms,  Max: %7sms,  Avg: %7sms;  Outstanding IO: %d\n", label,
             KHostPcieInfo::latencyText(d.minLatency).c_str(), KHostPcieInfo::latencyText(d.maxLatency).c_str(),
             KHostPcieInfo::latencyText(d.avgLatency).c_str(), static_cast<int>(d.outstanding));
    return line;
}

std::string ioLine(const char* label, const KHostPcieInfo::Direction& d)
{
    char line[256];
    snprintf(line, sizeof line, "%-15s  %10d,  Min: %9s,  Max: %9s,  Avg: %9s,  IOPS: %5d,  KBs: %-5d\n", label,
             static_cast<int>(d.ioCount), sizeText(d.minSize).c_str(), sizeText(d.maxSize).c_str(),
             sizeText(d.avgSize).c_str(), static_cast<int>(d.iosPerSec), static_cast<int>(d.bandwidth >> 10));
    return line;
}

// One line of the short view: the label padded so that all "=" line up.
std::string summaryLine(const std::string& label, const std::string& figures)
{
    char line[96];
    snprintf(line, sizeof line, "\n    %-34s= ", label.c_str());
    return line + figures;
}

// The four lines of one direction in the short view.
std::string summaryLines(const std::string& word, const KHostPcieInfo::Direction& d)
{
    std::string text = summaryLine("Average " + word + " IOs/Sec", PBase::ui64NumberToText(d.iosPerSec));
    text += summaryLine("Min/Max/Average " + word + " IO Size",
                        joined(sizeText(d.minSize), sizeText(d.maxSize), sizeText(d.avgSize)));
    text += summaryLine("Average " + word + " Bandwidth", sizeText(d.bandwidth) + " / sec");
    text += summaryLine("Min/Max/Average " + word + " IO Latency",
                        joined(KHostPcieInfo::latencyText(d.minLatency), KHostPcieInfo::latencyText(d.maxLatency),
                               KHostPcieInfo::latencyText(d.avgLatency)) +
                            " milliseconds");
    return text;
}

} // namespace

KHostPcieInfo::KHostPcieInfo() : PBase()
{
    init();
}

KHostPcieInfo::KHostPcieInfo(const KHostPcieInfo& other) : PBase()
{
    init();
    *this = other;
}

KHostPcieInfo& KHostPcieInfo::operator=(const KHostPcieInfo& other)
{
    if (this != &other) {
        init();
        fastMemcpy(&readDiffTime, FIELDS_SIZE, &other.readDiffTime, FIELDS_SIZE);
    }
    return *this;
}

KHostPcieInfo::~KHostPcieInfo()
{
    init();
}

void KHostPcieInfo::init()
{
    fastMemsetZero(&readDiffTime, FIELDS_SIZE);
    initSerialization(&readDiffTime, sizeof(KHostPcieInfo));
}

uint32_t KHostPcieInfo::fieldAt(unsigned int index) const
{
    return index < FIELD_COUNT ? this->*kFields[index].field : 0;
}

std::string KHostPcieInfo::csvTitleAt(unsigned int index)
{
    return index < FIELD_COUNT ? kFields[index].csvTitle : "";
}

std::string KHostPcieInfo::latencyText(uint32_t microseconds)
{
    float milliseconds = static_cast<float>(microseconds / 1000.0);
    char text[64];
    snprintf(text, sizeof text, "%.3f", milliseconds);
    return text;
}

KHostPcieInfo::Direction KHostPcieInfo::reads() const
{
    return {readIoCount,      avgReadIosPerSec, minReadIoSize,  maxReadIoSize,  avgReadIoSize,
            avgReadBandwidth, minReadLatency,   maxReadLatency, avgReadLatency, readIoOutstanding};
}

KHostPcieInfo::Direction KHostPcieInfo::writes() const
{
    return {writeIoCount,      avgWriteIosPerSec, minWriteIoSize,  maxWriteIoSize,  avgWriteIoSize,
            avgWriteBandwidth, minWriteLatency,   maxWriteLatency, avgWriteLatency, writeIoOutstanding};
}

std::string KHostPcieInfo::displayText() const
{
    std::string text = "\n\n[Host IO Statistics]\n\n";
    text += latencyLine("Read  Latency:", reads());
    text += latencyLine("Write Latency:", writes());
    text += "\n";
    text += ioLine("Host Reads:", reads());
    text += ioLine("Host Writes:", writes());
    return text;
}

std::string KHostPcieInfo::displayText2() const
{
    return "    [Host Statistics]\n" + summaryLines("Read", reads()) + summaryLines("Write", writes()) + "\n\n";
}
