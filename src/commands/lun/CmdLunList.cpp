#include "commands/lun/CmdLunList.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_LUN, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdLunList::CmdLunList()
{
    declareCommand(*this, rows);
    helpTitle = "List LUN";
    helpDescription = "Lists LUNs, one line per LUN with the keywords that select it. With -zek the LUNs of each target "
        "that this adapter sees; without it every LUN seen by any adapter, once, with the adapter that caches "
        "it.";
    helpSyntax = "\t[-zek=<adapter>]";
    helpModifiers = "-zek=<adapter>\n"
        "\tList the LUNs as this adapter sees them, target by target.";
    helpExamples = ugCommandPrompt()
        + ugCommandPrompt() + "-zek=0";
    helpResultFile = listResultHelp("PLunID", 576, "LUN identifier");
}

int CmdLunList::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
