#include "commands/lun/CmdLunModify.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_MODIFY, CmdItem::ITEM_LUN, TokenCmd::GROUP_LUN_CONFIG),
    keywordRow(ModifierId::MODIFIER_SIZE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_REMOVE_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdLunModify::CmdLunModify()
{
    declareCommand(*this, rows);
    helpTitle = "Modify LUN";
    helpDescription = "Grows, renames or changes the mirror of a data LUN of the adapter.";
    helpSyntax = "\t[-size=<GB>]\n"
        "\t[-name=<name>]\n"
        "\t[-mirror=<adapter>]\n"
        "\t[-remove_mirror]\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = "-size=<GB>\n"
        "\tNew size of the LUN in whole gigabytes, 1 to 1000.\n"
        "-name=<name>\n"
        "\tNew symbolic name of the LUN, up to 64 characters.\n"
        "-mirror=<adapter>\n"
        "\tAdapter that keeps a mirror of the LUN, in any form that -zek accepts.\n"
        "-remove_mirror\n"
        "\tRemove the mirror of the LUN.\n" + lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -size=200 -lun_number=1 -fc_target=5006-0160-3BE0-1234"
        + ugCommandPrompt() + "-zek=0 -remove_mirror -lun_number=1 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected. Size and name cannot be changed together with the\n"
        "mirror, and -mirror and -remove_mirror cannot be combined.";
}

int CmdLunModify::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
