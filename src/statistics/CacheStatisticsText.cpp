#include "statistics/CacheStatisticsText.h"

#include "records/KAdapterHealthInfo.h"
#include "statistics/FormattedText.h"

namespace {

using Figure = CacheStatisticsModel::Figure;

char const* const kLunRowFormat = "%-40s%10s%20s%27s  %10s %10s";

std::string number(long long value)
{
    return PBase::i64NumberToText(value);
}

std::string bytesText(unsigned long long value)
{
    return PBase::longlongToMByteText(value);
}

// A byte count in the largest unit that gives a whole part, as the counter
// algebra shows it.
std::string unitText(long long bytes)
{
    KCacheInfo counter;
    counter.value = bytes;
    return counter.displayTextWithUnit();
}

// A figure counted in MiB, in bytes.
long long mibInBytes(long long mib)
{
    return static_cast<long long>(static_cast<unsigned long long>(mib) << 20);
}

std::string inParentheses(std::string const& text)
{
    return "(" + text + ")";
}

// A size of units of 512 bytes in the stream lines: in KB, one decimal.
std::string halfText(long long blocks)
{
    return formattedText("%.1f", static_cast<float>(blocks) * 0.5);
}

// "(min, max)KB" of a size window kept in units of 512 bytes.
std::string windowText(uint32_t smallest, uint32_t largest)
{
    return "(" + std::to_string(smallest >> 1) + ", " + std::to_string(largest >> 1) + ")KB";
}

// A window limit in bytes, rounded down to whole KB.
unsigned long long limitBytes(uint32_t blocks)
{
    return static_cast<unsigned long long>(blocks >> 1) << 10;
}

std::string lunTitle(char const* capacityColumn)
{
    return formattedText("%-40s%10s%20s%27s  %10s %10s\n", "WWULN", "Size", "Cache Capacity", capacityColumn,
                         "Read Size", "Write Size");
}

std::string warning(char const* which, char const* compared, char const* bound, unsigned long long average,
                    unsigned long long limit, char const* advice)
{
    return std::string("    WARNING: The average ") + which + " size (" + bytesText(average) + ") is " + compared +
        " than this LUN's " + bound + " size (" + bytesText(limit) + ")!\n" + "    We suggest to " + advice +
        " cache size!\n";
}

// A share above 5 in one sample, or a change of 6 or more, is worth a
// warning.
std::string bypassWarning(char const* label, Figure const& percent, bool delta)
{
    if (!delta)
        return percent.value > 5 ? std::string(label) + number(percent.value) + "% WARNING!!!\n" : std::string();
    if (percent.value < 6 && percent.change < 6)
        return std::string();
    return "\n" + std::string(label) + number(percent.value) + "% (" + number(percent.change) + "%) WARNING!!!\n";
}

std::string overwriteLine(char const* label, Figure const& count, Figure const& percent)
{
    return formattedText("    %-33s= %9s%9s", label, number(count.value).c_str(), number(percent.value).c_str()) +
        "%\n";
}

std::string overwriteDeltaLine(char const* label, Figure const& count, Figure const& percent)
{
    return formattedText("    %-33s= %11s%11s%7s%%%7s\n", label, number(count.value).c_str(),
                         inParentheses(number(count.change)).c_str(), number(percent.value).c_str(),
                         inParentheses(number(percent.change) + "%").c_str());
}

} // namespace

std::string CacheStatisticsText::displayGlobalIoText(bool delta) const
{
    std::string text = "[" + model.time.displayLocalTime() + " " + model.time.displayLocalDate() + "]\n\n";
    std::string const upTime = KAdapterHealthInfo::systemUptimeToText(static_cast<unsigned>(model.upTime.value));
    if (delta)
        text += "    Korvane Adapter Up Time: " + upTime + " (+" +
            KAdapterHealthInfo::systemUptimeToText(static_cast<unsigned>(model.upTime.change)) + ")\n";
    else
        text += "    Korvane Adapter Up Time: " + upTime + "\n\n";
    text += model.sample.hostPcie.displayText();
    text += "\n\n[Global Cache IO Statistics]\n\n";
    return text + streamLines() + "\n";
}

std::string CacheStatisticsText::streamLines() const
{
    std::string text;
    for (CacheStatisticsModel::Stream const& s : model.streams)
        text += formattedText("%-15s  %10s,  Min: %7sKB,  Max: %7sKB,  Avg: %7sKB,  IOPS: %5s,  KBs: %-5s\n", s.label,
                              number(s.ios.value).c_str(), halfText(s.min.value).c_str(), halfText(s.max.value).c_str(),
                              halfText(s.avg.value).c_str(), number(s.iops.value).c_str(), number(s.kbs.value).c_str());
    return text;
}

std::string CacheStatisticsText::displayGlobalCacheText(bool delta) const
{
    std::string text = "\n[Global Cache Statistics]\n\n";
    for (CacheStatisticsModel::Capacity const& line : model.capacities)
        text += capacityLine(line, delta);
    text += "\n";
    for (CacheStatisticsModel::Hits const& line : model.hits)
        text += hitLine(line, delta);
    return text;
}

std::string CacheStatisticsText::capacityLine(CacheStatisticsModel::Capacity const& line, bool delta) const
{
    std::string const value = unitText(mibInBytes(line.mib.value));
    std::string const percentEnd = line.ofReadData ? "% of Read Data)" : "%)";
    if (!delta) {
        if (!line.hasPercent)
            return formattedText("%-30s = %11s\n", line.label, value.c_str());
        return formattedText("%-30s = %11s", line.label, value.c_str()) +
            formattedText(" (%3s", number(line.percent).c_str()) + percentEnd + "\n";
    }
    std::string const change = inParentheses(unitText(mibInBytes(line.mib.change)));
    if (!line.hasPercent)
        return formattedText("%-30s = %11s %-9s\n", line.label, value.c_str(), change.c_str());
    return formattedText("%-30s = %11s %-9s", line.label, value.c_str(), change.c_str()) +
        formattedText("%20s\n", ("(" + number(line.percent) + percentEnd).c_str());
}

std::string CacheStatisticsText::hitLine(CacheStatisticsModel::Hits const& line, bool delta) const
{
    std::string text = delta ? formattedText("%-33s%11s (%7s)", line.label, number(line.count.value).c_str(),
                                             number(line.count.change).c_str())
                             : formattedText("%-33s%11s", line.label, number(line.count.value).c_str());
    return text + formattedText(" (%2s", number(line.percent).c_str()) + "%)\n";
}

std::string CacheStatisticsText::displayLunCacheText(bool delta, unsigned interval) const
{
    std::string text = "\n\n[LUN Based Cache Statistics]\n\n" + lunTitle("(Clean + Dirty)");
    for (CacheStatisticsModel::Lun const& lun : model.luns) {
        KLunCacheInfo const& cache = lun.sample->cache();
        text += lunRow(lun, delta);
        if (cache.bMirrored)
            text += "   (Mirrored at Adapter " + PBase::ui64NumberToHexText(cache.ui64MirrorAdapter) + ")\n";
        if (interval > 0)
            text += lunWarnings(cache);
    }
    if (model.mirrorLuns.empty())
        return text;
    text += "\n\n[Mirror LUN Statistics]\n\n" + lunTitle("(Dirty)");
    for (CacheStatisticsModel::MirrorLun const& lun : model.mirrorLuns)
        text += mirrorLunRow(lun, delta);
    return text;
}

std::string CacheStatisticsText::lunRow(CacheStatisticsModel::Lun const& lun, bool delta) const
{
    KLunCacheInfo const& cache = lun.sample->cache();
    KLunCacheStatistics const& statistics = lun.sample->statistics();
    unsigned long long const total = model.totalCacheableBytes;
    std::string const size = total == 0
        ? "0 + 0%"
        : bytesText(lun.cacheableBytes) + " " + std::to_string(lun.cacheableBytes * 100 / total) + "%";
    std::string capacity = bytesText(lun.usedBytes) + (delta ? " (" + bytesText(lun.usedChange) + ") " : " ");
    capacity += model.poolBytes != 0 ? std::to_string(lun.usedBytes * 100 / model.poolBytes) + "%" : "0%";
    std::string const parts =
        " (" + bytesText(statistics.ui64CleanBytes) + " + " + bytesText(statistics.ui64DirtyBytes) + ")";
    return formattedText(kLunRowFormat, lun.wwuln.c_str(), size.c_str(), capacity.c_str(), parts.c_str(),
                         windowText(cache.ui32MinRead, cache.ui32MaxRead).c_str(),
                         windowText(cache.ui32MinWrite, cache.ui32MaxWrite).c_str()) +
        "\n";
}

// The averages are those of the whole adapter. The write warnings test the
// write average but quote the read average, as they always have.
std::string CacheStatisticsText::lunWarnings(KLunCacheInfo const& cache) const
{
    unsigned long long const reads = model.sample.hostPcie.avgReadIoSize;
    unsigned long long const writes = model.sample.hostPcie.avgWriteIoSize;
    std::string text;
    if (reads != 0 && reads < limitBytes(cache.ui32MinRead))
        text +=
            warning("read", "smaller", "min read", reads, limitBytes(cache.ui32MinRead), "reduce this LUN's min read");
    if (writes != 0 && writes < limitBytes(cache.ui32MinWrite))
        text += warning("write", "smaller", "min write", reads, limitBytes(cache.ui32MinWrite),
                        "reduce this LUN's min write");
    if (reads > limitBytes(cache.ui32MaxRead))
        text +=
            warning("read", "bigger", "max read", reads, limitBytes(cache.ui32MaxRead), "enlarge this LUN's max read");
    if (writes > limitBytes(cache.ui32MaxWrite))
        text += warning("write", "bigger", "max write", reads, limitBytes(cache.ui32MaxWrite),
                        "enlarge this LUN's max write");
    return text;
}

std::string CacheStatisticsText::mirrorLunRow(CacheStatisticsModel::MirrorLun const& lun, bool delta) const
{
    KLunCacheInfo const& cache = lun.info->cacheInfo;
    std::string const dirty = bytesText(lun.dirtyBytes) + (delta ? " (" + bytesText(lun.dirtyChange) + ") " : "");
    return formattedText("%-40s%10s%20s%27s  %10s %10s\n", lun.wwuln.c_str(),
                         bytesText(lun.info->ui64LunSizeBytes).c_str(), bytesText(cache.ui64MaxCacheBytes).c_str(),
                         dirty.c_str(), windowText(cache.ui32MinRead, cache.ui32MaxRead).c_str(),
                         windowText(cache.ui32MinWrite, cache.ui32MaxWrite).c_str()) +
        "   (Cached on remote adapter " + PBase::ui64NumberToHexText(lun.info->ui64ClusterCacheAdapterPrimary()) +
        ")\n";
}

std::string CacheStatisticsText::displayAnalysisCacheText(bool delta) const
{
    return "\n\n[Cache Statistics Analysis]\n\n\n   [Cache Read]\n" + (delta ? analysisDeltaText() : analysisText());
}

std::string CacheStatisticsText::analysisText() const
{
    CacheStatisticsModel::Analysis const& a = model.analysis;
    std::string text =
        formattedText("    %-33s= %9s%9s", "New SSD Read Cache from Read", number(a.flushes.value).c_str(),
                      unitText(mibInBytes(a.flushedMib.value)).c_str()) +
        "\n";
    // The first warning starts without an empty line; it always has.
    text += bypassWarning("    SSD Read Bypass Size = ", a.readBypassSizePercent, false);
    text += bypassWarning("\n    SSD Read Bypass Memory = ", a.readBypassMemoryPercent, false);
    text += "\n   [Cache Write]\n";
    text += formattedText("    %-33s= %9s", "SSD Write Cache Writes", number(a.writes.value).c_str()) + "\n";
    text += overwriteLine("SSD Read Cache Overwrites", a.readOverwrites, a.readOverwritePercent);
    text += overwriteLine("SSD Write Cache Overwrites", a.writeOverwrites, a.writeOverwritePercent);
    text += overwriteLine("New SSD Write Cache Writes", a.newWrites, a.newWritePercent);
    text += "\n    SSD Cache Freed = " + number(a.freed.value) + "\n";
    text += bypassWarning("\n    SSD Write By Pass Size = ", a.writeBypassSizePercent, false);
    text += bypassWarning("\n    SSD Write By Pass Memory = ", a.writeBypassMemoryPercent, false);
    return text;
}

std::string CacheStatisticsText::analysisDeltaText() const
{
    CacheStatisticsModel::Analysis const& a = model.analysis;
    std::string text =
        formattedText("    %-33s= %11s%11s%7s%7s\n", "New SSD Read Cache from Read", number(a.flushes.value).c_str(),
                      inParentheses(number(a.flushes.change)).c_str(), unitText(mibInBytes(a.flushedMib.value)).c_str(),
                      inParentheses(unitText(mibInBytes(a.flushedMib.change))).c_str());
    text += bypassWarning("    SSD Read Bypass Size = ", a.readBypassSizePercent, true);
    text += bypassWarning("    SSD Read Bypass Memory = ", a.readBypassMemoryPercent, true);
    text += "\n   [Cache Write]\n";
    text += formattedText("    %-33s= %11s%11s\n", "SSD Write Cache Writes", number(a.writes.value).c_str(),
                          inParentheses(number(a.writes.change)).c_str());
    text += overwriteDeltaLine("SSD Read Cache Overwrites", a.readOverwrites, a.readOverwritePercent);
    text += overwriteDeltaLine("SSD Write Cache Overwrites", a.writeOverwrites, a.writeOverwritePercent);
    text += overwriteDeltaLine("New SSD Write Cache Writes", a.newWrites, a.newWritePercent);
    text += "\n    SSD Cache Freed = " + number(a.freed.value) + " (" + number(a.freed.change) + ")\n";
    text += bypassWarning("    SSD Write By Pass Size = ", a.writeBypassSizePercent, true);
    text += bypassWarning("    SSD Write By Pass Memory = ", a.writeBypassMemoryPercent, true);
    return text;
}
