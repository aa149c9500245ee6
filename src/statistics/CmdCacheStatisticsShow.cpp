#include "statistics/CmdCacheStatisticsShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "statistics/CacheStatisticsCsv.h"
#include "statistics/CacheStatisticsModel.h"
#include "statistics/CacheStatisticsText.h"

#include <ctime>

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_CACHE_STATISTICS, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_CSV_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_DELTA, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

// "<folder>/<adapter id>_<month>-<day>_<hour>-<minute>", of the local time
// now: each run writes into a folder of its own.
std::string runFolder(std::string const& folder, std::string const& adapterId)
{
    time_t const now = time(nullptr);
    tm local{};
    localtime_r(&now, &local);
    return folder + "/" + adapterId + "_" + std::to_string(local.tm_mon + 1) + "-" + std::to_string(local.tm_mday) +
        "_" + std::to_string(local.tm_hour) + "-" + std::to_string(local.tm_min);
}

} // namespace

CmdCacheStatisticsShow::CmdCacheStatisticsShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Cache Statistics";
    helpDescription = "Displays cache statistics";
    helpSyntax = "\t[-interval=<seconds>]\n"
                 "\t[-csv_folder=<folder>]\n"
                 "\t[-delta]\n" +
        adapterSyntax();
    helpModifiers = "-interval=<seconds>\n"
                    "\tRepeat every so many seconds, 0 to 100000, until interrupted\n"
                    "\twith Ctrl-C. 0 or not given shows the figures once.\n"
                    "-csv_folder=<folder>\n"
                    "\tWith -interval, also append the figures to CSV files in a new\n"
                    "\tfolder of this run under this folder.\n"
                    "-delta\n"
                    "\tShow the change of each figure since the previous interval.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -interval=10 -delta -csv_folder=stats";
}

void CmdCacheStatisticsShow::init_member()
{
    current = CacheStatisticsSample();
    previous = CacheStatisticsSample();
    first = true;
}

int CmdCacheStatisticsShow::execCommand(std::string& err)
{
    init_member();
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    unsigned interval = 0;
    if (int const rc = StatisticsLoop::readInterval(*this, interval, err))
        return rc;
    TokenModifierString const* const folderKeyword = findModifier(ModifierId::MODIFIER_CSV_FOLDER, err);
    TokenModifierString const* const deltaKeyword = findModifier(ModifierId::MODIFIER_DELTA, err);
    if (!folderKeyword || !deltaKeyword)
        return ZEKCLI_PARSE_FAIL;
    HIsaAdapter& adapter = *addressed.adapter;
    if (keywordGiven(folderKeyword))
        csvFolder += runFolder(folderKeyword->value, adapter.getAdapterPath()->hbaIDText());
    // Without a loop there are no changes to show and no files to write.
    bool const delta = interval > 0 && keywordGiven(deltaKeyword);
    StatisticsLoop const loop(*this, adapter, interval);
    return loop.run(
        [&](CommandReport& report, std::string&) {
            (void)current.read(adapter);
            report.text = onceText();
            report.writeResult = false;
            return 0;
        },
        [&](StatisticsLoop::Cycle& c) { return cycle(c, adapter, interval, delta, err); }, err);
}

std::string CmdCacheStatisticsShow::onceText() const
{
    CacheStatisticsModel const model(current, nullptr);
    CacheStatisticsText const view(model);
    return view.displayGlobalIoText(false) + view.displayGlobalCacheText(false) + view.displayLunCacheText(false, 0) +
        view.displayAnalysisCacheText(false) + "\n\n";
}

int CmdCacheStatisticsShow::cycle(StatisticsLoop::Cycle& cycle, HIsaAdapter& adapter, unsigned interval, bool delta,
                                  std::string& err)
{
    std::string text;
    // Without the pool the cycle shows only its clock.
    if (current.read(adapter) == MHBA_S_OK) {
        if (int const rc = showSample(text, adapter, interval, delta, err))
            return rc;
    }
    cycle.out.line(text + cycle.clockLine());
    return StatisticsLoop::kNextCycle;
}

int CmdCacheStatisticsShow::showSample(std::string& text, HIsaAdapter& adapter, unsigned interval, bool delta,
                                       std::string& err)
{
    CacheStatisticsModel const model(current, first ? nullptr : &previous);
    CacheStatisticsText const view(model);
    if (first) {
        text =
            view.displayGlobalIoText(false) + view.displayGlobalCacheText(false) + view.displayLunCacheText(false, 0);
        // With -delta the first cycle has no analysis: it would show no change.
        if (!delta)
            text += view.displayAnalysisCacheText(false);
    } else {
        text = view.displayGlobalIoText(delta) + view.displayGlobalCacheText(delta) +
            view.displayLunCacheText(delta, interval) + view.displayAnalysisCacheText(delta);
    }
    if (!csvFolder.empty() &&
        !CacheStatisticsCsv(model, csvFolder).writeFiles(adapter.getAdapterPath()->hbaIDText(), first, err))
        return ZEKCLI_OUTPUT_FAIL;
    first = false;
    previous = current;
    // The counters of a cycle whose library call fails read as zero.
    current.counters.init();
    return 0;
}
