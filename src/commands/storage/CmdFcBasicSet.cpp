#include "commands/storage/CmdFcBasicSet.h"

#include "records/KIsaAdapterInfo.h"
#include "scripting/ScriptSections.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/FcPortChoice.h"
#include "commands/KeywordHelp.h"
#include "commands/storage/FcPortSettings.h"
#include "core/ZekcliReturn.h"
#include "records/KFcInfo.h"
#include "records/RecordImage.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_FC, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_PORT, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_FC_LINK_RATE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_EXEC_THROTTLE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_LOOP_ONLY, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_P2P_ONLY, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_AUTO, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

} // namespace

CmdFcBasicSet::CmdFcBasicSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set FC";
    helpDescription =
        "Sets the link rate, the connection mode and the execution throttle of a Fibre Channel port. Settings "
        "that are not given keep their present values.";
    helpSyntax = portSyntax(true) +
        "\n"
        "\t[-fc_link_rate=<rate>]\n"
        "\t[-exec_throttle=<count>]\n"
        "\t[-loop_only]\n"
        "\t[-p2p_only]\n"
        "\t[-auto]\n" +
        adapterSyntax();
    helpModifiers = portHelp() +
        "\n"
        "-fc_link_rate=<rate>\n"
        "\tLink rate: auto, 2gb, 4gb, 8gb, 10gb or 16gb.\n"
        "-exec_throttle=<count>\n"
        "\tExecution throttle of the port, 16 to 65535.\n"
        "-loop_only\n"
        "\tConnect in loop mode only.\n"
        "-p2p_only\n"
        "\tConnect in point-to-point mode only.\n"
        "-auto\n"
        "\tChoose the connection mode automatically.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -port=1 -fc_link_rate=8gb" + ugCommandPrompt() +
        "-zek=0 -port=2 -p2p_only -exec_throttle=256";
    helpResultFile = recordResultHelp("KFcInfo", 176);
    helpNotes = "Only one of -loop_only, -p2p_only and -auto can be given.";
}

int CmdFcBasicSet::execCommand(std::string& err)
{
    FcPortChoice choice;
    if (int const rc = chooseRequiredFcPort(*this, choice, err))
        return rc;
    HIsaAdapter& adapter = *choice.addressed.adapter;
    KFcInfo port;
    if (int const rc = adapter.getFcInfo(choice.index, port))
        return rc;
    FcPortSettings settings = FcPortSettings::of(port);
    if (!readFcPortSettings(*this, settings, err))
        return ZEKCLI_PARSE_FAIL;
    if (int const rc =
            adapter.setFcInfo(choice.index, settings.linkRate, settings.connectionOption, settings.executionThrottle))
        return rc;
    // Read back, so that the result record shows the port as it now is.
    if (int const rc = adapter.getFcInfo(choice.index, port))
        return rc;
    CommandReport report;
    report.text = "FC Port " + std::to_string(choice.index + 1) + " basic info successfully configured";
    std::vector<unsigned char> const image = recordImage(port);
    report.data = image.data();
    report.size = image.size();
    return finishCommand(*this, &adapter, report, err);
}

int CmdFcBasicSet::saveScript(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const&,
                              KIsaAdapterInfo const& info, std::string& err)
{
    std::string lines;
    for (uint32_t index = 0; index < info.fcPortCount; ++index) {
        KFcInfo port;
        if (int const rc = adapter->getFcInfo(index, port))
            return rc;
        lines += scriptCommandWords(CmdAction::ACTION_SET, CmdItem::ITEM_FC) + " -port=" + std::to_string(index + 1) +
            " -fc_link_rate=" + PBase::fcLinkRateToText(port.programmedLinkRate) + " " + tail + "\n";
    }
    return outScript(file, lines, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
