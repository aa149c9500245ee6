#include "commands/cache/CmdCacheDump.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_DUMP, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdCacheDump::CmdCacheDump()
{
    declareCommand(*this, rows);
    helpTitle = "Dump Cache";
    helpDescription = "Saves a summary of the cache of the adapter in a file named CacheInfo-<adapter id><YYYY-MM-DD_HH-MM-SS>.txt "
        "and displays it, once or at an interval.";
    helpSyntax = "\t[-folder=<folder>]\n"
        "\t[-interval=<seconds>]\n" + adapterSyntax();
    helpModifiers = "-folder=<folder>\n"
        "\tFolder for the dump files; created if it does not exist.\n"
        "\tDefault is the home directory.\n"
        "-interval=<seconds>\n"
        "\tRepeat every so many seconds, 0 to 100000, until the command is\n"
        "\tinterrupted with Ctrl-C. 0 or not given runs once.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0"
        + ugCommandPrompt() + "-zek=0 -folder=/tmp/dumps -interval=60";
}

int CmdCacheDump::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
