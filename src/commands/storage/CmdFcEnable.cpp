#include "commands/storage/CmdFcEnable.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FcPortSwitch.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_ENABLE, CmdItem::ITEM_FC_PORT, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdFcEnable::CmdFcEnable()
{
    declareCommand(*this, rows);
    helpTitle = "Enable FC_Port";
    helpDescription = "Enables a Fibre Channel port of the adapter.";
    helpSyntax = portSyntax(true) + "\n" + adapterSyntax();
    helpModifiers = portHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -port=2";
}

int CmdFcEnable::execCommand(std::string& err)
{
    return switchFcPort(*this, true, err);
}
