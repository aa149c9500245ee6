#include "commands/storage/CmdPoolSet.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_POOL, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CACHE, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdPoolSet::CmdPoolSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Pool";
    helpDescription = "Sets how much of the SSD storage of the adapter serves as cache pool.";
    helpSyntax = "\t-cache=<size>\n" + adapterSyntax();
    helpModifiers = "-cache=<size>\n"
                    "\tPart of the SSD storage used as cache pool, with a unit of KB, MB, GB,\n"
                    "\tTB or PB. A number without a unit counts in GB. At least 4GB.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -cache=200" + ugCommandPrompt() + "-zek=0 -cache=512GB";
}

int CmdPoolSet::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
