#include "commands/adapter/CmdBeaconDisable.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/BeaconSwitch.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_DISABLE, CmdItem::ITEM_BEACON, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdBeaconDisable::CmdBeaconDisable()
{
    declareCommand(*this, rows);
    helpTitle = "Disable Beacon";
    helpDescription = "Turns off the beacon light of a Fibre Channel port.";
    helpSyntax = portSyntax(true) + "\n" + adapterSyntax();
    helpModifiers = portHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -port=1";
}

int CmdBeaconDisable::execCommand(std::string& err)
{
    return switchBeacon(*this, false, err);
}
