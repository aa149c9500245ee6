#include "commands/adapter/CmdAdapterShow.h"

#include "commands/CommandDeclaration.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdAdapterShow::CmdAdapterShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Adapter";
    helpDescription = "Shows the details of the local adapters, or of one adapter.";
    helpSyntax = "\t[-zek=<adapter>]";
    helpModifiers = "-zek=<adapter>\n"
        "\tShow only this adapter.";
    helpExamples = ugCommandPrompt()
        + ugCommandPrompt() + "-zek=0";
}

int CmdAdapterShow::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
