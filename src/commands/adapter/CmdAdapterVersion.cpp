#include "commands/adapter/CmdAdapterVersion.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_VERSION, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_COMPARE, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdAdapterVersion::CmdAdapterVersion()
{
    declareCommand(*this, rows);
    helpTitle = "Version Adapter";
    helpDescription = "Checks that the firmware of the adapter has an expected version. The outcome is shown and recorded "
        "in the result file; the command itself succeeds either way.";
    helpSyntax = "\t-compare=<version>\n" + adapterSyntax();
    helpModifiers = "-compare=<version>\n"
        "\tExpected firmware version, compared exactly.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -compare=2.103.6.4";
}

int CmdAdapterVersion::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
