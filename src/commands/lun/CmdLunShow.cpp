#include "commands/lun/CmdLunShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, TokenCmd::GROUP_ORDINARY),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdLunShow::CmdLunShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show LUN";
    helpDescription = "Shows everything known about LUNs: identity, state, paths, cache settings and statistics. With "
        "-zek the selected LUNs as this adapter sees them; without it every LUN, once, from the adapter "
        "that caches it.";
    helpSyntax = lunSelectorSyntax() + "\n"
        "\t[-zek=<adapter>]";
    helpModifiers = lunSelectorHelp() + "\n"
        "-zek=<adapter>\n"
        "\tShow the LUNs as this adapter sees them.";
    helpExamples = ugCommandPrompt()
        + ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234"
        + ugCommandPrompt() + "-zek=0 -lun_wwuln=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311";
    helpResultFile = listResultHelp("KLunInfo", 1560, "LUN record");
    helpNotes = "The LUN keywords are used only together with -zek.";
}

int CmdLunShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
