#include "commands/adapter/CmdSfpShow.h"

#include <cstdint>

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KSfpInfo.h"
#include "records/RecordImage.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_SFP, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

int appendSfpText(HIsaAdapter& adapter, uint32_t portIndex, KSfpInfo& sfp, std::string& text)
{
    if (int const rc = adapter.getSfpInfo(portIndex, sfp))
        return rc;
    text += sfp.displayText() + "\n";
    return 0;
}

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
    AddressedAdapter target;
    KIsaAdapterInfo info;
    if (int const rc = findAdapterAndInfo(*this, target, info, err))
        return rc;
    int port = 1;
    bool given = false;
    if (!getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_PORT, 1, static_cast<int>(info.fcPortCount), port,
                                                 given, err))
        return ZEKCLI_PARSE_FAIL;

    // The result record holds the port read last.
    KSfpInfo sfp;
    CommandReport report;
    if (given) {
        if (int const rc = appendSfpText(*target.adapter, static_cast<uint32_t>(port - 1), sfp, report.text))
            return rc;
    } else {
        for (uint32_t index = 0; index < info.fcPortCount; ++index)
            if (int const rc = appendSfpText(*target.adapter, index, sfp, report.text))
                return rc;
    }
    std::vector<unsigned char> const image = recordImage(sfp);
    report.data = image.data();
    report.size = image.size();
    return finishCommand(*this, target.adapter, report, err);
}
