#include "commands/cache/CmdCachePurge.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_PURGE, CmdItem::ITEM_CACHE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ACCEPT_RISK, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdCachePurge::CmdCachePurge()
{
    declareCommand(*this, rows);
    helpTitle = "Purge Cache";
    helpDescription = "Discards the cached write data of a LUN that is gone for good. If the LUN comes back, the data "
        "in the cache is lost and the volume may be corrupted.";
    helpSyntax = "\t[-accept_risk]\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = "-accept_risk\n"
        "\tPurge without asking for confirmation.\n" + lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected. Only for LUNs that will not come back.";
}

int CmdCachePurge::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
