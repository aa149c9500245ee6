#include "commands/cache/CmdCacheModify.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_MODIFY, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_MODE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    CACHE_SETTINGS_ROWS,
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_USE_DEFAULT, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdCacheModify::CmdCacheModify()
{
    declareCommand(*this, rows);
    helpTitle = "Modify Cache";
    helpDescription =
        "Changes the cache settings of a LUN that is already cached. The mode and the read and write sizes "
        "that are not given keep their present values; the profile returns to default and the cache limit is lifted "
        "unless they are given; an existing mirror stays.";
    helpSyntax = "\t[-mode=<cache mode>]\n" + cacheSettingsSyntax() + "\n" + lunSelectorSyntax() +
        "\n"
        "\t[-use_default]\n"
        "\t[-mirror=<adapter>]\n" +
        adapterSyntax();
    helpModifiers = "-mode=<cache mode>\n"
                    "\tNew cache mode: read_write_through, read_write_back, read_only,\n"
                    "\twrite_through_only or write_back_only.\n" +
        cacheSettingsHelp() + "\n" + lunSelectorHelp() +
        "\n"
        "-use_default\n"
        "\tReturn the read and write sizes to the firmware defaults.\n"
        "-mirror=<adapter>\n"
        "\tAdapter that keeps a mirror of the cache, in any form that -zek accepts.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -mode=read_write_through -lun_number=2 -fc_target=5006-0160-3BE0-1234" +
        ugCommandPrompt() + "-zek=0 -use_default -lun_wwuln=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311";
    helpNotes = "The LUN must be cached already (use \"enable cache\" otherwise).\n"
                "The minimum sizes must not exceed the maximum sizes.";
}

int CmdCacheModify::execCommand(std::string& err)
{
    return runCacheCommand(true, err);
}
