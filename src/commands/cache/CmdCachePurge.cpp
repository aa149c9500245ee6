#include "commands/cache/CmdCachePurge.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"
#include "records/KLunCacheInfo.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_PURGE, CmdItem::ITEM_CACHE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ACCEPT_RISK, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    LUN_SELECTOR_ROWS,
    endRow(),
};

constexpr char kPurgePrompt[] =
    "This command is intended for use in clearing cache for LUNs that are gone forever.  Cached write data for this "
    "LUN will be purged from the cache, which means that if the LUN comes back the cached data will be lost and the "
    "volume may be corrupted.  Are you sure you want to purge cached write data for this LUN [yes/no]? ";

// How many LUNs were resolved, said before the purge goes to the first.
std::string lunCountWarning(std::vector<PLunID> const& ids)
{
    if (ids.empty())
        return "No LUN specified";
    if (ids.size() == 1)
        return std::string();
    std::string text = "More than one LUN specified - this command must be applied to just one LUN:";
    for (PLunID const& id : ids)
        text += "\n    " + id.displayText();
    return text + "\n";
}

} // namespace

CmdCachePurge::CmdCachePurge()
{
    declareCommand(*this, rows);
    helpTitle = "Purge Cache";
    helpDescription = "Discards the cached write data of a LUN that is gone for good. If the LUN comes back, the data "
                      "in the cache is lost and the volume may be corrupted.";
    helpSyntax = "\t[-accept_risk]\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = "-accept_risk\n"
                    "\tPurge without asking for confirmation.\n" +
        lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected. Only for LUNs that will not come back.";
}

int CmdCachePurge::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    err.clear();
    std::vector<PLunID> ids;
    if (!getLunIdFromCommandLine(addressed.adapter, false, true, ids, err))
        return ZEKCLI_PARSE_FAIL;
    CommandOutput out(*this);
    if (!out.line(lunCountWarning(ids)))
        return out.end(0, err);

    TokenModifierString const* const acceptRisk = findModifier(ModifierId::MODIFIER_ACCEPT_RISK, err);
    if (!acceptRisk)
        return ZEKCLI_PARSE_FAIL;
    if (!keywordGiven(acceptRisk) && !confirmRisk(kPurgePrompt))
        return ZEKCLI_CONFIRM_FAIL;

    PLunID const lun = ids.empty() ? PLunID() : ids.front();
    e_MHBA_RETURN const rc = addressed.adapter->enableCache(lun, KLunCacheInfo::CACHE_MODE_PURGE_IN_PROGRESS,
                                                            KLunCacheInfo::CACHE_PROFILE_DEFAULT, 0, 0, 0, 0, 0, 0);
    if (rc != MHBA_S_OK)
        return rc;
    out.line("Successfully started purge for LUN " + lun.displayText() + "\n");
    out.result(MHBA_S_OK);
    return out.end(0, err);
}
