#include "commands/adapter/CmdAdapterVersion.h"

#include <cstring>

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_VERSION, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_COMPARE, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

std::string firmwareVersionOf(KIsaAdapterInfo const& info)
{
    std::string version(info.swVersion, strnlen(info.swVersion, sizeof info.swVersion));
    if (!version.empty() && version.back() == '\n')
        version.pop_back();
    return version;
}

} // namespace

CmdAdapterVersion::CmdAdapterVersion()
{
    declareCommand(*this, rows);
    helpTitle = "Version Adapter";
    helpDescription =
        "Checks that the firmware of the adapter has an expected version. The outcome is shown and recorded "
        "in the result file; the command itself succeeds either way.";
    helpSyntax = "\t-compare=<version>\n" + adapterSyntax();
    helpModifiers = "-compare=<version>\n"
                    "\tExpected firmware version, compared exactly.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -compare=2.103.6.4";
}

int CmdAdapterVersion::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findAddressedAdapter(*this, target, err))
        return rc;
    TokenModifierString const* const compare = findModifier(ModifierId::MODIFIER_COMPARE, err);
    if (!compare)
        return ZEKCLI_PARSE_FAIL;
    KIsaAdapterInfo info;
    if (int const rc = target.adapter->getAdapterInfo(info))
        return rc;

    std::string const firmware = firmwareVersionOf(info);
    CommandReport report;
    report.banner = false;
    if (compare->value == firmware) {
        report.text = "Confirmed:  Adapter firmware version is " + firmware;
    } else {
        report.text = "FAILED:  Tested adapter firmware version for " + compare->value +
            ", but the adapter firmware is " + firmware;
        // A failed test is an answer, not an error: scripts read it from the
        // result record while the command itself succeeds.
        report.resultCode = MHBA_E_FAILURE;
    }
    return finishCommand(*this, target.adapter, report, err);
}
