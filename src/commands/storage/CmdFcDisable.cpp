#include "commands/storage/CmdFcDisable.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FcPortSwitch.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_DISABLE, CmdItem::ITEM_FC_PORT, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdFcDisable::CmdFcDisable()
{
    declareCommand(*this, rows);
    helpTitle = "Disable FC_Port";
    helpDescription = "Disables a Fibre Channel port of the adapter.";
    helpSyntax = portSyntax(true) + "\n" + adapterSyntax();
    helpModifiers = portHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -port=2";
    helpNotes = "A port with a configured FCIP link cannot be disabled.";
}

int CmdFcDisable::execCommand(std::string& err)
{
    return switchFcPort(*this, false, err);
}
