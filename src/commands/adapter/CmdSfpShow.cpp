#include "commands/adapter/CmdSfpShow.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/FcPortChoice.h"
#include "commands/KeywordHelp.h"
#include "records/KSfpInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_SFP, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdSfpShow::CmdSfpShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show SFP";
    helpDescription = "Shows the SFP transceiver data of one Fibre Channel port, or of all.";
    helpSyntax = "\t[-port=<port number>]\n" + adapterSyntax();
    helpModifiers = "-port=<port number>\n"
                    "\tShow only this port, 1 to the number of ports.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -port=1";
    helpResultFile = recordResultHelp("KSfpInfo", 576);
}

int CmdSfpShow::execCommand(std::string& err)
{
    // Each port's text ends in a line feed, also when one port is chosen.
    return showPortRecords(*this, &HIsaAdapter::getSfpInfo, true, err);
}
