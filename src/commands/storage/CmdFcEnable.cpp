#include "commands/storage/CmdFcEnable.h"

#include "api/HbaMgmtInterfaces.h"
#include "core/ZekcliReturn.h"
#include "records/KFcInfo.h"
#include "records/KIsaAdapterInfo.h"
#include "scripting/ScriptSections.h"

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

int CmdFcEnable::saveScript(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const&,
                            KIsaAdapterInfo const& info, std::string& err)
{
    std::string lines;
    for (uint32_t index = 0; index < info.fcPortCount; ++index) {
        KFcInfo port;
        if (int const rc = adapter->getFcInfo(index, port))
            return rc;
        CmdAction::CMD_ACTION const action =
            port.portStatus == PBase::PORT_ENABLED ? CmdAction::ACTION_ENABLE : CmdAction::ACTION_DISABLE;
        lines += scriptCommandWords(action, CmdItem::ITEM_FC_PORT) + " -port=" + std::to_string(index + 1) + " " +
            tail + "\n";
    }
    return outScript(file, lines, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
