#include "commands/cache/CmdCacheDump.h"

#include <cstdio>
#include <ctime>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/Token.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "statistics/StatisticsLoop.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_DUMP, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// What the library is asked to write: the cache summary of the adapter.
constexpr int kCacheSummaryDump = 2;

// The lines of an open file, each ended by a new line, a last line without
// its end included so that nothing the adapter wrote is lost.
std::string readAllLines(FILE* file)
{
    std::string text;
    for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file))
        text.push_back(static_cast<char>(byte));
    if (!text.empty() && text.back() != '\n')
        text.push_back('\n');
    return text;
}

} // namespace

CmdCacheDump::CmdCacheDump()
{
    declareCommand(*this, rows);
    helpTitle = "Dump Cache";
    helpDescription =
        "Saves a summary of the cache of the adapter in a file named CacheInfo-<adapter id><YYYY-MM-DD_HH-MM-SS>.txt "
        "and displays it, once or at an interval.";
    helpSyntax = "\t[-folder=<folder>]\n"
                 "\t[-interval=<seconds>]\n" +
        adapterSyntax();
    helpModifiers = "-folder=<folder>\n"
                    "\tFolder for the dump files; created if it does not exist.\n"
                    "\tDefault is the home directory.\n"
                    "-interval=<seconds>\n"
                    "\tRepeat every so many seconds, 0 to 100000, until the command is\n"
                    "\tinterrupted with Ctrl-C. 0 or not given runs once.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -folder=/tmp/dumps -interval=60";
}

int CmdCacheDump::execCommand(std::string& err)
{
    err.clear();
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    unsigned interval = 0;
    if (int const rc = StatisticsLoop::readInterval(*this, interval, err))
        return rc;
    TokenModifierString const* const folderKeyword = findModifier(ModifierId::MODIFIER_FOLDER, err);
    if (!folderKeyword)
        return ZEKCLI_PARSE_FAIL;
    // The keyword's initial value is no folder; an empty one means home.
    std::string folder = keywordGiven(folderKeyword) ? folderKeyword->value : std::string();
    if (!createDirectoryIfItDoesNotExist(folder, err))
        return ZEKCLI_PARSE_FAIL;
    if (interval > 0)
        return dumpRepeatedly(*addressed.adapter, folder, interval, err);

    std::string const path = folder + "/" + getCacheInfoFileName(addressed.adapter->getAdapterPath()->hbaIDText());
    e_MHBA_RETURN const rc = addressed.adapter->saveCacheDump(kCacheSummaryDump, path);
    if (g_pHbaMgmtApi->isFailure(rc))
        return rc;
    CommandReport report;
    report.banner = false;
    report.text = displayCacheInfoFile(path) + "\n";
    report.resultCode = rc;
    return finishCommand(*this, addressed.adapter, report, err);
}

int CmdCacheDump::dumpRepeatedly(HIsaAdapter& adapter, std::string const& folder, unsigned int seconds,
                                 std::string& err)
{
    return StatisticsLoop(*this, adapter, seconds)
        .loop(
            [&](StatisticsLoop::Cycle& cycle) {
                std::string const path = folder + "/" + getCacheInfoFileName(adapter.getAdapterPath()->hbaIDText());
                e_MHBA_RETURN const rc = adapter.saveCacheDump(kCacheSummaryDump, path);
                if (g_pHbaMgmtApi->isFailure(rc))
                    return static_cast<int>(rc);
                std::string const text = displayCacheInfoFile(path) + "\n";
                // Each round shows the summary twice.
                if (cycle.out.line(text))
                    cycle.out.line(text);
                return StatisticsLoop::kNextCycle;
            },
            err);
}

std::string CmdCacheDump::getCacheInfoFileName(std::string const& adapterText) const
{
    time_t const now = time(nullptr);
    tm local{};
    if (!localtime_r(&now, &local))
        return std::string();
    char stamp[32];
    if (strftime(stamp, sizeof stamp, "%Y-%m-%d_%H-%M-%S", &local) == 0)
        return std::string();
    return "CacheInfo-" + adapterText + stamp + ".txt";
}

std::string CmdCacheDump::displayCacheInfoFile(std::string const& path) const
{
    FILE* file = nullptr;
    std::string openError;
    if (!Token::safe_fopen(&file, path, "r", openError))
        return openError;
    std::string const text = readAllLines(file);
    fclose(file);
    return text;
}
