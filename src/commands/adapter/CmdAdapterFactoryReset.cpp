#include "commands/adapter/CmdAdapterFactoryReset.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_FACTORY_RESET, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ACCEPT_RISK, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

} // namespace

CmdAdapterFactoryReset::CmdAdapterFactoryReset()
{
    declareCommand(*this, rows);
    helpTitle = "Factory_Reset Adapter";
    helpDescription = "Erases all persistent settings of the adapter and returns them to factory defaults. Data on the "
        "drives is not changed.";
    helpSyntax = "\t[-accept_risk]\n" + adapterSyntax();
    helpModifiers = "-accept_risk\n"
        "\tReset without asking for confirmation.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0"
        + ugCommandPrompt() + "-zek=0 -accept_risk";
    helpNotes = "The adapter must be restarted (\"restart adapter\") for the reset to take effect.";
}

int CmdAdapterFactoryReset::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
