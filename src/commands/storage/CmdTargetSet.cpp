#include "commands/storage/CmdTargetSet.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_TARGET, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FC_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_IS_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

constexpr int kMinOutstandingIo = 32;
constexpr int kMaxOutstandingIo = 2048;

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
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    PTargetID target;
    bool targetGiven = false;
    if (!getTargetIdFromCommandLineModifiers(false, target, targetGiven, err))
        return ZEKCLI_PARSE_FAIL;
    if (!targetGiven) {
        err = "This command requires a target - please use -fc_target=..";
        return ZEKCLI_PARSE_FAIL;
    }
    int count = 0;
    bool countGiven = false;
    if (!getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_MAX_OUTSTANDING_IO, kMinOutstandingIo,
                                                 kMaxOutstandingIo, count, countGiven, err))
        return ZEKCLI_PARSE_FAIL;
    // The frame asks for the required count before the command runs.
    if (!countGiven)
        return ZEKCLI_PARSE_FAIL;
    // Only a target that the adapter sees is sent the limit, and the
    // library's answer is not waited on: the text tells what was asked.
    if (addressed.adapter->getTargets()->find(target))
        addressed.adapter->setTargetMaxOutstandingIo(target, static_cast<uint32_t>(count));
    CommandReport report;
    report.text = "\n\t-max_outstanding_io=" + std::to_string(count) + " for -fc_target=" + target.displayText() +
        " set successfully.";
    return finishCommand(*this, addressed.adapter, report, err);
}
