#include "commands/storage/CmdTargetSet.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_TARGET, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FC_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_IS_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdTargetSet::CmdTargetSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Target";
    helpDescription = "Sets the maximum number of outstanding I/O requests that the adapter sends to a target.";
    helpSyntax = "\t[-fc_target=<wwpn>]\n"
                 "\t[-is_target=<iscsi name>]\n"
                 "\t-max_outstanding_io=<count>\n" +
        adapterSyntax();
    helpModifiers = "-fc_target=<wwpn>\n"
                    "\tWorld-wide port name of a Fibre Channel target.\n"
                    "-is_target=<iscsi name>\n"
                    "\tName of an iSCSI target.\n"
                    "-max_outstanding_io=<count>\n"
                    "\tMaximum number of outstanding I/O requests, 32 to 2048.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -fc_target=5006-0160-3BE0-1234 -max_outstanding_io=256";
    helpNotes = "A target must be named with -fc_target or -is_target.";
}

int CmdTargetSet::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
