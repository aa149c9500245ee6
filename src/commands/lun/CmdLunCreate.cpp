#include "commands/lun/CmdLunCreate.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CREATE, CmdItem::ITEM_LUN, TokenCmd::GROUP_LUN_CONFIG),
    keywordRow(ModifierId::MODIFIER_SIZE, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdLunCreate::CmdLunCreate()
{
    declareCommand(*this, rows);
    helpTitle = "Create LUN";
    helpDescription = "Creates a data LUN on the SSD drives of the adapter, optionally mirrored on a second adapter.";
    helpSyntax = "\t-size=<GB>\n"
        "\t[-name=<name>]\n"
        "\t[-mirror=<adapter>]\n" + adapterSyntax();
    helpModifiers = "-size=<GB>\n"
        "\tSize of the new LUN in whole gigabytes, at least 1.\n"
        "-name=<name>\n"
        "\tSymbolic name of the new LUN, up to 64 characters.\n"
        "-mirror=<adapter>\n"
        "\tAdapter that keeps a mirror of the LUN, in any form that -zek accepts.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -size=100 -name=datalun1"
        + ugCommandPrompt() + "-zek=0 -size=100 -mirror=1";
}

int CmdLunCreate::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
