#include "commands/adapter/CmdAdapterSet.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdAdapterSet::CmdAdapterSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Adapter";
    helpDescription = "Sets the symbolic name of the adapter.";
    helpSyntax = "\t[-name=<name>]\n" + adapterSyntax();
    helpModifiers = "-name=<name>\n"
        "\tNew symbolic name: blank, or at most 63 characters.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -name=rack4_hba0";
    helpNotes = "A name change may need \"restart adapter\" to take effect.";
}

int CmdAdapterSet::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
