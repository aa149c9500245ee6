#include "commands/storage/CmdFcBasicShow.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/FcPortChoice.h"
#include "commands/KeywordHelp.h"
#include "records/KFcInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_FC, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdFcBasicShow::CmdFcBasicShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show FC";
    helpDescription = "Shows the settings and state of one Fibre Channel port, or of all.";
    helpSyntax = "\t[-port=<port number>]\n" + adapterSyntax();
    helpModifiers = "-port=<port number>\n"
                    "\tShow only this port, 1 to the number of ports.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -port=2";
    helpResultFile = recordResultHelp("KFcInfo", 176);
}

int CmdFcBasicShow::execCommand(std::string& err)
{
    // A port's block already ends in a line feed; the blocks of all ports
    // are set apart by one more.
    return showPortRecords(*this, &HIsaAdapter::getFcInfo, false, err);
}
