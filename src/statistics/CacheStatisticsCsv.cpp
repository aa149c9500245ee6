#include "statistics/CacheStatisticsCsv.h"

#include "scripting/CsvFileInfo.h"

namespace {

constexpr char kLeadingTitles[] = "Date,Time,Adapter ID,";
constexpr double kMegabyte = 1048576.0;

// The summary title up to the LUN columns; the odd spellings, blanks and
// tabs are those that readers of these files have always been given.
constexpr char const* kSummaryTitleGroups[] = {
    "Date,Time,Adapter ID, \t\t\t\t  ",
    "Host Read Min Latency (ms),  Host Read Max Latency (ms),  Host Read Avg Latency (ms), Host Read Outstanding IO, "
    "\t\t\t\t  ",
    "Host Write Min Latency (ms), Host Write Max Latency (ms) ,Host Write Avg Latency (ms), Host Write Outstanding IO, "
    "\t\t\t\t  ",
    "Host Read Count, Host Read Min Size (KBs), Host Read Max Size (KBs),  Host Read Avg Size (KBs),  Host Read IOPS,  "
    "Host Read Bandwidth (KBs), \t\t\t\t  ",
    "Host Write Count,Host Write Min Size (KBs),Host Write Max Size (KBs), Host Write Avg Size (KBs), Host Write IOPS, "
    "Host Write Bandwidth (KBs), \t\t\t\t  ",
    "Global Cache Host Read Count,  Global Cache Host Read Min Size (KBs),  Global Cache Host Read Max Size (KBs),  "
    "Global Cache Host Read Avg Size (KBs),  Global Cache Host Read IOPS,  Global Cache Host Read Bandwidth (KBs), "
    "\t\t\t\t  ",
    "Global Cache Host Write Count, Global Cache Host Write Min Size (KBs), Global Cache Host Write Max Size (KBs), "
    "Global Cache Host Write Avg Size (KBs), Global Cache Host Write IOPS, Global Cache Host Write Bandwidth (KBs), "
    "\t\t\t\t  ",
    "Global Cache Host Read Flush Count,  Global Cache Host Read Flush Min Size (KBs),  Global Cache Host Read Flush "
    "Max Size (KBs),  Global Cache Host Read Flush Avg Size (KBs),  Global Cache Host Read Flush IOPS,  Global Cache "
    "Host Read Flush Bandwidth (KBs), \t\t\t\t  ",
    "Global Cache Host Write Flush Count, Global Cache Host Write Flush Min Size (KBs), Global Cache Host Write Flush "
    "Max Size (KBs), Global Cache Host Write Flush Avg Size (KBs), Global Cache Host Write Flush IOPS, Global Cache "
    "Host Write Flush Bandwidth (KBs), \t\t\t\t  ",
    "Total Cache Capacity (MB), Cache Capacity Used (SSD+RAM) (MB), %, Cache Capacity Dirty (MB), Read Data (MB), "
    "Write Data (MB), Cache Writes (MB), %, Cache Hits (Read Load) (MB), % of Read Data (MB), Cache Hits (Write Load) "
    "(MB), % of Read Data, Cache Hits (Total) (MB), % of Read Data, \t\t\t\t  ",
    "RAM Read Cache Hits from Read, %, SSD Read Cache Hits from Read, %, SSD Read Cache Hits Overwrite, %, SSD Read "
    "Cache Hits from Write, %,\t\t\t\t  ",
    "New SSD Read Cache from Read Count, New SSD Read Cache from Read Size (MB), SSD Read Bypass Size (MB), %, SSD "
    "Read "
    "Bypass Memory (MB), %, \t\t\t\t  ",
    "SSD Write Cache Writes, SSD Read Cache Overwrites, %, SSD Write Cache Overwrites, %, New SSD Write Cache Writes, "
    "%, SSD Ccahe Freed, SSD Write Bypass Size (MB), %, SSD Write Bypass Memory (MB), %,\t\t\t\t  ",
    "Number of Cached LUNs, Total LUN Size (MB), Total Cacheable LUN Size (MB),",
};

constexpr char const* kSummaryLunTitles[] = {
    " WWULN,",
    " Cache Type,",
    " Size (MB),",
    " Ratio of this LUN Size to Total LUN Size,",
    " Max Cacheable Size (MB),",
    " Ratio of this LUN Cacheable Size to Total LUN Cacheable Size,",
    " Max Read Size to be Cached (KB),",
    " Min Read Size to be Cached (KB),",
    " Max Write Size to be Cached (KB),",
    " Min Write Size to be Cached (KB),",
    " Number of Locked Range,",
    " Cache Hit (Read Load) (MB),",
    " Cache Hit (Read Load) %,",
    " Cache Hit (Write Load) (MB),",
    " Cache Hit (Write Load) %,",
    " Total data read by host (MB),",
    " Total data written by host (MB),",
    " Clean Cache in-use (MB),",
    " Dirty Cache in-use (MB),",
    " Locked Cache in-use (MB),",
};

constexpr char const* kLunFileLunTitles[] = {
    " WWULN,",
    " Cache Type,",
    " Size (Bytes),",
    " Ratio of this LUN Size to Total LUN Size,",
    " Max Cacheable Size (Bytes),",
    " Ratio of this LUN Cacheable Size to Total LUN Cacheable Size,",
    " Max Read Size to be Cached,",
    " Min Read Size to be Cached,",
    " Max Write Size to be Cached,",
    " Min Write Size to be Cached,",
    " Number of Locked Range,",
    " Cache Hit (Read Load) (Bytes),",
    " Cache Hit (Read Load) %,",
    " Cache Hit (Write Load) (Bytes),",
    " Cache Hit (Write Load) %,",
    " Total data read by host (Bytes),",
    " Total data written by host (bytes),",
    " Clean Cache in-use (Bytes),",
    " Dirty Cache in-use (Bytes),",
    " Locked Cache in-use (Bytes),",
};

constexpr char const* kSummaryMirrorTitles[] = {" WWULN,", " Size (MB),", " Dirty (MB),"};
constexpr char const* kLunFileMirrorTitles[] = {" WWULN,", " Size (Bytes),", " Dirty (Bytes),"};

// "LUN 1" once, then its columns: " WWULN, Cache Type, ..."
template <std::size_t N>
std::string numberedTitles(char const* word, std::size_t count, char const* const (&pieces)[N])
{
    std::string text;
    for (std::size_t n = 1; n <= count; ++n) {
        text += word + std::to_string(n);
        for (char const* piece : pieces)
            text += piece;
    }
    return text;
}

double shiftedOrNot(unsigned long long bytes, bool inMegabytes)
{
    return static_cast<double>(inMegabytes ? bytes >> 20 : bytes);
}

double bytesOrMegabytes(unsigned long long bytes, bool inMegabytes)
{
    return inMegabytes ? static_cast<double>(bytes) / kMegabyte : static_cast<double>(bytes);
}

double ratio(unsigned long long part, unsigned long long whole)
{
    return whole == 0 ? 0.0 : static_cast<double>(part) * 100.0 / static_cast<double>(whole);
}

void appendStream(std::vector<double>& values, CacheStatisticsModel::Stream const& s)
{
    auto half = [](long long blocks) { return static_cast<double>(blocks) * 0.5; };
    values.insert(values.end(),
                  {static_cast<double>(s.ios.value), half(s.min.value), half(s.max.value), half(s.avg.value),
                   static_cast<double>(s.iops.value), static_cast<double>(s.kbs.value)});
}

void appendFigures(std::vector<double>& values, std::initializer_list<CacheStatisticsModel::Figure> figures)
{
    for (CacheStatisticsModel::Figure const& figure : figures)
        values.push_back(static_cast<double>(figure.value));
}

} // namespace

bool CacheStatisticsCsv::writeFiles(std::string const& adapterId, bool first, std::string& err) const
{
    KHostPcieInfo const& host = model.sample.hostPcie;
    return writeCsvFile(adapterId, model.sample.counters, first, err) &&
        writeHostPcieCsvFile(adapterId, host, first, err) && writeLunCacheCsvFile(adapterId, first, err) &&
        writeCacheStatisticsCsvFile(adapterId, host, first, err);
}

bool CacheStatisticsCsv::writeCsvFile(std::string const& adapterId, KCacheInfoList const& counters, bool first,
                                      std::string& err) const
{
    std::string title = kLeadingTitles;
    std::vector<long long> values;
    for (uint32_t i = 0; i < counters.count && i < KCacheInfoList::MAX_ITEMS; ++i) {
        title += counters.items[i].displayTitle() + ",";
        values.push_back(counters.items[i].value);
    }
    PTime now;
    now.initFromLocalTime();
    return CsvFileInfo::csvAppendFile(folder, adapterId + "_cache_statistics.csv", adapterId, title, now, values, first,
                                      err);
}

bool CacheStatisticsCsv::writeHostPcieCsvFile(std::string const& adapterId, KHostPcieInfo const& host, bool first,
                                              std::string& err) const
{
    std::string title = kLeadingTitles;
    std::vector<long long> values;
    for (unsigned i = 0; i < KHostPcieInfo::FIELD_COUNT; ++i) {
        title += KHostPcieInfo::csvTitleAt(i);
        values.push_back(host.fieldAt(i));
    }
    PTime now;
    now.initFromLocalTime();
    return CsvFileInfo::csvAppendFile(folder, adapterId + "_host_pcie_statistics.csv", adapterId, title, now, values,
                                      first, err);
}

bool CacheStatisticsCsv::writeLunCacheCsvFile(std::string const& adapterId, bool first, std::string& err) const
{
    PTime now;
    now.initFromLocalTime();
    return CsvFileInfo::csvAppendFile(folder, adapterId + "_lun_cache_statistics.csv", adapterId,
                                      lunCacheTitle(model.luns.size(), model.mirrorLuns.size()), now,
                                      static_cast<unsigned>(model.luns.size()), lunNames(), lunValues(false),
                                      mirrorLunNames(), mirrorLunValues(false), first, err);
}

bool CacheStatisticsCsv::writeCacheStatisticsCsvFile(std::string const& adapterId, KHostPcieInfo const& host,
                                                     bool first, std::string& err) const
{
    PTime now;
    now.initFromLocalTime();
    return CsvFileInfo::csvAppendFile(folder, adapterId + "_cache_statistics_summary.csv", adapterId,
                                      summaryTitle(model.luns.size(), model.mirrorLuns.size()), now,
                                      static_cast<unsigned>(model.luns.size()), summaryValues(host), lunNames(),
                                      lunValues(true), mirrorLunNames(), mirrorLunValues(true), first, err);
}

std::string CacheStatisticsCsv::summaryTitle(std::size_t luns, std::size_t mirrorLuns)
{
    std::string title;
    for (char const* group : kSummaryTitleGroups)
        title += group;
    return title + numberedTitles("LUN ", luns, kSummaryLunTitles) +
        numberedTitles("Mirror LUN ", mirrorLuns, kSummaryMirrorTitles);
}

std::string CacheStatisticsCsv::lunCacheTitle(std::size_t luns, std::size_t mirrorLuns)
{
    std::string title = kLeadingTitles;
    if (luns > 0)
        title += "Number of Cached LUNs,Total LUN Size,Total Cacheable LUN Size,";
    return title + numberedTitles("LUN ", luns, kLunFileLunTitles) +
        numberedTitles("Mirror LUN ", mirrorLuns, kLunFileMirrorTitles);
}

std::vector<std::string> CacheStatisticsCsv::lunNames() const
{
    std::vector<std::string> names;
    names.reserve(model.luns.size());
    for (CacheStatisticsModel::Lun const& lun : model.luns)
        names.push_back(lun.wwuln);
    return names;
}

std::vector<std::string> CacheStatisticsCsv::mirrorLunNames() const
{
    std::vector<std::string> names;
    names.reserve(model.mirrorLuns.size());
    for (CacheStatisticsModel::MirrorLun const& lun : model.mirrorLuns)
        names.push_back(lun.wwuln);
    return names;
}

std::vector<double> CacheStatisticsCsv::lunValues(bool inMegabytes) const
{
    std::vector<double> values = {shiftedOrNot(model.totalLunBytes, inMegabytes),
                                  shiftedOrNot(model.totalCacheableBytes, inMegabytes)};
    values.reserve(2 + model.luns.size() * 20);
    for (CacheStatisticsModel::Lun const& lun : model.luns) {
        KLunCacheInfo const& c = lun.sample->cache();
        KLunCacheStatistics const& s = lun.sample->statistics();
        values.insert(values.end(),
                      {static_cast<double>(c.eCacheMode),
                       shiftedOrNot(lun.sizeBytes, inMegabytes),
                       ratio(lun.sizeBytes, model.totalLunBytes),
                       shiftedOrNot(lun.cacheableBytes, inMegabytes),
                       ratio(lun.cacheableBytes, model.totalCacheableBytes),
                       static_cast<double>(c.ui32MaxRead),
                       static_cast<double>(c.ui32MinRead),
                       static_cast<double>(c.ui32MaxWrite),
                       static_cast<double>(c.ui32MinWrite),
                       static_cast<double>(c.ui32LockedRangeCount),
                       bytesOrMegabytes(s.ui64ReadHitBytes, inMegabytes),
                       s.ui32ReadHitPercent / 100.0,
                       bytesOrMegabytes(s.ui64WriteHitBytes, inMegabytes),
                       s.ui32WriteHitPercent / 100.0,
                       bytesOrMegabytes(s.ui64TotalRead, inMegabytes),
                       bytesOrMegabytes(s.ui64TotalWritten, inMegabytes),
                       bytesOrMegabytes(s.ui64CleanBytes, inMegabytes),
                       bytesOrMegabytes(s.ui64DirtyBytes, inMegabytes),
                       bytesOrMegabytes(s.ui64LockedBytes, inMegabytes),
                       CsvFileInfo::kEndOfGroup});
    }
    return values;
}

std::vector<double> CacheStatisticsCsv::mirrorLunValues(bool inMegabytes) const
{
    std::vector<double> values;
    values.reserve(model.mirrorLuns.size() * 3);
    for (CacheStatisticsModel::MirrorLun const& lun : model.mirrorLuns)
        values.insert(values.end(),
                      {shiftedOrNot(lun.info->ui64LunSizeBytes, inMegabytes), shiftedOrNot(lun.dirtyBytes, inMegabytes),
                       CsvFileInfo::kEndOfGroup});
    return values;
}

std::vector<double> CacheStatisticsCsv::summaryValues(KHostPcieInfo const& host) const
{
    auto field = [&](unsigned index) { return static_cast<double>(host.fieldAt(index)); };
    auto latency = [&](unsigned index) { return host.fieldAt(index) / 1000.0; };
    auto kilobytes = [&](unsigned index) { return static_cast<double>(host.fieldAt(index) >> 10); };
    std::vector<double> values = {latency(12),   latency(13),   latency(14),   field(15),     latency(22),
                                  latency(23),   latency(24),   field(25),     field(2),      kilobytes(7),
                                  kilobytes(8),  kilobytes(9),  field(6),      kilobytes(10), field(4),
                                  kilobytes(17), kilobytes(18), kilobytes(19), field(16),     kilobytes(20)};
    for (CacheStatisticsModel::Stream const& stream : model.streams)
        appendStream(values, stream);
    for (CacheStatisticsModel::Capacity const& line : model.capacities) {
        values.push_back(static_cast<double>(line.mib.value));
        if (line.hasPercent)
            values.push_back(static_cast<double>(line.percent));
    }
    for (CacheStatisticsModel::Hits const& line : model.hits)
        values.insert(values.end(), {static_cast<double>(line.count.value), static_cast<double>(line.percent)});
    CacheStatisticsModel::Analysis const& a = model.analysis;
    appendFigures(values,
                  {a.flushes, a.flushedMib, a.readBypassSize, a.readBypassSizePercent, a.readBypassMemory,
                   a.readBypassMemoryPercent, a.writes, a.readOverwrites, a.readOverwritePercent, a.writeOverwrites,
                   a.writeOverwritePercent, a.newWrites, a.newWritePercent, a.freed, a.writeBypassSize,
                   a.writeBypassSizePercent, a.writeBypassMemory, a.writeBypassMemoryPercent});
    return values;
}
