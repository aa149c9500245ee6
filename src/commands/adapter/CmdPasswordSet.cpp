#include "commands/adapter/CmdPasswordSet.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_PASSWORD, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_RPC_PASSWORD, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_OLD_PASSWORD, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// The adapter has one management account.
char const* const kAccount = "admin";

} // namespace

CmdPasswordSet::CmdPasswordSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Password";
    helpDescription = "Changes the password with which remote management reaches the adapter.";
    helpSyntax = "\t-rpc_password=<new password>\n"
                 "\t[-old_password=<current password>]\n" +
        adapterSyntax();
    helpModifiers = "-rpc_password=<new password>\n"
                    "\tThe new password of the adapter.\n"
                    "-old_password=<current password>\n"
                    "\tThe password in force now, if one is set.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -rpc_password=newsecret -old_password=oldsecret";
}

int CmdPasswordSet::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findAddressedAdapter(*this, target, err))
        return rc;
    err.clear();
    TokenModifierString const* const newPassword = findModifier(ModifierId::MODIFIER_RPC_PASSWORD, err);
    if (!newPassword)
        return ZEKCLI_PARSE_FAIL;
    TokenModifierString const* const oldPassword = findModifier(ModifierId::MODIFIER_OLD_PASSWORD, err);
    if (!oldPassword)
        return ZEKCLI_PARSE_FAIL;
    // A left-out old password passes what its keyword holds; the adapter
    // judges it.
    if (int const rc = target.adapter->setPassword(kAccount, oldPassword->value.c_str(), newPassword->value.c_str()))
        return rc;
    CommandReport report;
    report.text = "Password has been changed";
    return finishCommand(*this, target.adapter, report, err);
}
