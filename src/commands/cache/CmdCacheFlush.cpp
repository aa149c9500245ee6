#include "commands/cache/CmdCacheFlush.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_FLUSH, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_SYNC, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

} // namespace

CmdCacheFlush::CmdCacheFlush()
{
    declareCommand(*this, rows);
    helpTitle = "Flush Cache";
    helpDescription = "Writes the dirty data in the cache back to the LUN, for the selected LUNs or for every cached LUN "
        "of the adapter.";
    helpSyntax = lunSelectorSyntax() + "\n"
        "\t[-sync]\n" + adapterSyntax();
    helpModifiers = lunSelectorHelp() + "\n"
        "-sync\n"
        "\tWait until flushing is complete, showing a dot every 3 seconds.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0"
        + ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234 -sync";
}

int CmdCacheFlush::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
