#include "commands/cache/CmdCacheEnable.h"

#include "api/HbaMgmtInterfaces.h"
#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"
#include "scripting/ScriptSections.h"
#include <vector>

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_ENABLE, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_MODE, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    CACHE_SETTINGS_ROWS,
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdCacheEnable::CmdCacheEnable()
{
    declareCommand(*this, rows);
    helpTitle = "Enable Cache";
    helpDescription =
        "Starts caching a SAN LUN on the adapter named by -zek, with the given cache mode and limits, optionally "
        "mirrored on a second adapter.";
    helpSyntax = "\t-mode=<cache mode>\n" + cacheSettingsSyntax() + "\n" + lunSelectorSyntax() +
        "\n"
        "\t[-mirror=<adapter>]\n" +
        adapterSyntax();
    helpModifiers = "-mode=<cache mode>\n"
                    "\tread_write_through, read_write_back, read_only, write_through_only\n"
                    "\tor write_back_only. Any unambiguous abbreviation is accepted.\n" +
        cacheSettingsHelp() + "\n" + lunSelectorHelp() +
        "\n"
        "-mirror=<adapter>\n"
        "\tAdapter that keeps a mirror of the cache, in any form that -zek accepts.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -mode=read_write_back -lun_number=2 -fc_target=5006-0160-3BE0-1234" +
        ugCommandPrompt() +
        "-zek=0 -mode=read_write_through -max_read=256 -lun_wwuln=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311 -mirror=1";
    helpNotes = "The LUN must not be cached yet (use \"modify cache\" for a cached LUN).\n"
                "The minimum sizes must not exceed the maximum sizes.";
}

int CmdCacheEnable::execCommand(std::string& err)
{
    return runCacheCommand(false, err);
}

namespace {

std::string cacheEnableLine(HLun& lun, std::string const& tail)
{
    KLunInfo const& info = *lun.getLunInfo();
    std::string line = scriptCommandWords(CmdAction::ACTION_ENABLE, CmdItem::ITEM_CACHE);
    line += info.cacheInfo.eCacheMode == KLunCacheInfo::CACHE_MODE_READ_WRITE_THROUGH ? " -mode=read_write_through"
                                                                                      : " -mode=read_write_back";
    // Written bare on purpose: the peer adapter is not known to the script.
    if (info.eMirrorState() == KLunInfo::MIRROR_STATE_PRIMARY)
        line += " -mirror=";
    PLunID const& id = *lun.getLunId();
    return line + " -lun_number=" + std::to_string(id.lunNumber()) + scriptTargetText(id, "-is_target") + " " + tail +
        "\n";
}

} // namespace

int CmdCacheEnable::saveScript(HIsaAdapter* adapter, FILE* file, std::string const& tail, std::string const&,
                               std::string& err)
{
    std::vector<HLun*> luns;
    if (int const rc = readScriptLuns(*adapter, luns))
        return rc;
    std::string lines;
    for (HLun* lun : luns) {
        KLunInfo const& info = *lun->getLunInfo();
        if (info.isSanLun() && info.isLunCached() && info.eCacheState() == KLunInfo::CACHE_STATE_CACHED_LOCAL)
            lines += cacheEnableLine(*lun, tail);
    }
    return outScript(file, lines, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
