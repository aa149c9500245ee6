#include "commands/adapter/CmdBeaconEnable.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/BeaconSwitch.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_ENABLE, CmdItem::ITEM_BEACON, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdBeaconEnable::CmdBeaconEnable()
{
    declareCommand(*this, rows);
    helpTitle = "Enable Beacon";
    helpDescription = "Turns on the beacon light of a Fibre Channel port, to find the adapter in the rack.";
    helpSyntax = portSyntax(true) + "\n" + adapterSyntax();
    helpModifiers = portHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -port=1";
}

int CmdBeaconEnable::execCommand(std::string& err)
{
    return switchBeacon(*this, true, err);
}
