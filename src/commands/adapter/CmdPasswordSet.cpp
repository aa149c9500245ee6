#include "commands/adapter/CmdPasswordSet.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_PASSWORD, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_RPC_PASSWORD, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_OLD_PASSWORD, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdPasswordSet::CmdPasswordSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Password";
    helpDescription = "Changes the password with which remote management reaches the adapter.";
    helpSyntax = "\t-rpc_password=<new password>\n"
        "\t[-old_password=<current password>]\n" + adapterSyntax();
    helpModifiers = "-rpc_password=<new password>\n"
        "\tThe new password of the adapter.\n"
        "-old_password=<current password>\n"
        "\tThe password in force now, if one is set.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -rpc_password=newsecret -old_password=oldsecret";
}

int CmdPasswordSet::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
