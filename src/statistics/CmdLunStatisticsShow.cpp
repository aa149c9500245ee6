#include "statistics/CmdLunStatisticsShow.h"

#include "api/HIsaAdapter.h"
#include "api/HLunCollection.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"
#include "scripting/CsvFileInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN_STATISTICS, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_CSV_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

// The lines a new LUN file starts with, after its first.
constexpr char kCsvTitles[] = ",,,Read,Read,Write,Write,Total,Total\n"
                              ",,,Cache,Cache,Cache,Cache,Cache,Cache\n"
                              ",,,Hits,Hits,Hits,Hits,Hits,Hits,Read,Write,Read,Write,Read,Write\n"
                              "Date,Time,Cached,Curr(%),Avg(%),Curr(%),Avg(%),Curr(%),Avg(%),I/O Count,I/O Count,"
                              "Blocks,Blocks,Cache Hits,Cache Hits\n";

void padTo(std::string& text, std::size_t width)
{
    if (text.size() < width)
        text.append(width - text.size(), ' ');
}

std::string bytesText(unsigned long long bytes)
{
    return PBase::longlongToMByteText(bytes);
}

std::string shareText(uint32_t hundredths)
{
    return KLunCacheStatistics::displayPercentTenthsForHundredthsLSB(hundredths);
}

// "<bytes> (<share>%)", with "/<average share>" when asked for.
std::string hitsText(unsigned long long bytes, uint32_t share, bool showAverage, uint32_t average)
{
    return bytesText(bytes) + " (" + shareText(share) + (showAverage ? "/" + shareText(average) : "") + "%)";
}

// The target's line before the first row of each target, and again in each
// cycle.
class TargetLines {
public:
    std::string before(PTargetID const& target)
    {
        if (target == current)
            return std::string();
        current = target;
        return target.displayText() + "\n";
    }

private:
    PTargetID current;
};

} // namespace

CmdLunStatisticsShow::CmdLunStatisticsShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show LUN_Statistics";
    helpDescription =
        "Displays statistics in a tabular format for either a single LUN or for all LUNs known to the Fibre "
        "Channel Adapter.";
    helpSyntax = "\t[-interval=<seconds>]\n" + lunSelectorSyntax() +
        "\n"
        "\t[-csv_folder=<folder>]\n" +
        adapterSyntax();
    helpModifiers = "-interval=<seconds>\n"
                    "\tRefresh the table every so many seconds, 0 to 100000, until\n"
                    "\tinterrupted with Ctrl-C. 0 or not given shows it once.\n" +
        lunSelectorHelp() +
        "\n"
        "-csv_folder=<folder>\n"
        "\tAlso append the figures of each LUN to a CSV file in this folder,\n"
        "\twhich must exist.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -interval=10 -csv_folder=stats";
}

int CmdLunStatisticsShow::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    std::vector<PLunID> ids;
    if (int const rc = findAdapterAndLuns(*this, addressed, false, ids, err))
        return rc;
    std::string const resolution = err;
    unsigned interval = 0;
    if (int const rc = StatisticsLoop::readInterval(*this, interval, err))
        return rc;
    TokenModifierString const* const folderKeyword = findModifier(ModifierId::MODIFIER_CSV_FOLDER, err);
    if (!folderKeyword)
        return ZEKCLI_PARSE_FAIL;
    HIsaAdapter& adapter = *addressed.adapter;
    std::vector<IoStatData> luns = selectLuns(adapter, ids);
    // The resolution's words say why nothing was selected.
    if (ids.empty() && !outDisplay(resolution, err))
        return ZEKCLI_OUTPUT_FAIL;
    std::string const folder = keywordGiven(folderKeyword) ? folderKeyword->value : std::string();
    return StatisticsLoop(*this, adapter, interval)
        .run(
            [&](CommandReport& report, std::string&) {
                int lastResult = MHBA_S_OK;
                report.text = onceText(adapter, luns, lastResult);
                report.resultCode = static_cast<e_MHBA_RETURN>(lastResult);
                return 0;
            },
            [&](StatisticsLoop::Cycle& c) { return cycle(c, adapter, luns, folder, err); }, err);
}

std::vector<IoStatData> CmdLunStatisticsShow::selectLuns(HIsaAdapter& adapter, std::vector<PLunID> const& ids) const
{
    std::vector<IoStatData> luns;
    luns.reserve(ids.size());
    for (PLunID const& id : ids) {
        HLun* const lun = findLunObject(adapter, id, LunGathering::PathTarget);
        if (!lun || readLunRecord(*lun) != MHBA_S_OK)
            continue;
        KLunInfo const& info = *lun->getLunInfo();
        // Only direct-access LUNs have statistics; the others are passed over.
        if (info.isLunInfoValid() && info.eLunType() == KLunInfo::LUN_TYPE_DIRECT_ACCESS)
            luns.emplace_back(id, info);
    }
    return luns;
}

std::string CmdLunStatisticsShow::onceText(HIsaAdapter& adapter, std::vector<IoStatData>& luns, int& lastResult) const
{
    std::string text = displayTitleText();
    TargetLines targets;
    for (IoStatData& data : luns) {
        KLunIoStatistics sample;
        lastResult = adapter.getLunIoStatistics(data.wwuln, data.wwulnLength, data.cached, sample);
        if (lastResult != MHBA_S_OK)
            continue; // a LUN without figures is left out
        text += targets.before(data.targetId) + displayRowText(false, data, sample) + "\n";
    }
    return text + "\n\n";
}

int CmdLunStatisticsShow::cycle(StatisticsLoop::Cycle& cycle, HIsaAdapter& adapter, std::vector<IoStatData>& luns,
                                std::string const& folder, std::string& err) const
{
    std::string text = displayTitleText();
    TargetLines targets;
    for (IoStatData& data : luns) {
        KLunIoStatistics sample;
        // A LUN that does not answer keeps its previous sample.
        if (adapter.getLunIoStatistics(data.wwuln, data.wwulnLength, data.cached, sample) != MHBA_S_OK)
            continue;
        // The first cycle has nothing to take the change from.
        if (cycle.number > 0) {
            KLunIoStatistics change = sample;
            change.subtract(data.previous);
            if (data.cached)
                data.addChange(change);
            text += targets.before(data.targetId) + displayRowText(false, data, change);
            if (!folder.empty() && !writeCsvFile(folder, data.lunId, data, change, err))
                return ZEKCLI_OUTPUT_FAIL;
        }
        data.previous = sample;
    }
    cycle.out.line(text + cycle.clockLine());
    return StatisticsLoop::kNextCycle;
}

std::string CmdLunStatisticsShow::displayTitleText() const
{
    return "      Cache Hits       Cache Hits       Cache Hits       Read      Cache\n"
           "      From Reads       From Writes      Total            Data      Capacity\n"
           "LUN   Bytes(%)         Bytes(%)         Bytes(%)         Bytes     Used (SSD+RAM)\n";
}

std::string CmdLunStatisticsShow::displayRowText(bool showAverage, IoStatData const& data,
                                                 KLunIoStatistics const& sample) const
{
    LunStatisticsRow const row(data, sample);
    KLunCacheStatistics const& s = sample.cacheStatistics;
    std::string text = std::to_string(data.lunId.lunNumber());
    if (data.cached) {
        padTo(text, 6);
        text += hitsText(s.ui64ReadHitBytes, row.readHits, showAverage, row.averageReadHits);
        padTo(text, 23);
        text += hitsText(s.ui64WriteHitBytes, row.writeHits, showAverage, row.averageWriteHits);
        padTo(text, 40);
        text += hitsText(s.ui64ReadHitBytes + s.ui64WriteHitBytes, row.allHits, showAverage, row.averageAllHits);
    }
    padTo(text, 57);
    text += bytesText(row.readBytes);
    if (data.cached) {
        padTo(text, 67);
        text += bytesText(row.usedBytes);
    }
    return text + "\n";
}

std::string CmdLunStatisticsShow::csvFileName(PLunID const& lun)
{
    return "lun" + std::to_string(lun.lunNumber()) + "vpg" + std::to_string(static_cast<int>(lun.vpgIndex())) + "_" +
        lun.targetID().displayText() + ".csv";
}

bool CmdLunStatisticsShow::writeCsvFile(std::string const& folder, PLunID const& lun, IoStatData const& data,
                                        KLunIoStatistics const& sample, std::string& err) const
{
    std::string const title = "LUN," + std::to_string(lun.lunNumber()) + "," +
        std::to_string(static_cast<int>(lun.vpgIndex())) + "," + lun.targetID().displayText() + ",";
    PTime now;
    now.initFromLocalTime();
    return CsvFileInfo::csvAppendFile(folder + "/" + csvFileName(lun), title, kCsvTitles, now,
                                      LunStatisticsRow::csvValues(data, sample), err);
}
