#include "commands/cache/CmdCacheLock.h"

#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"
#include "scripting/ScriptSections.h"
#include <algorithm>
#include <vector>

#include <cstdint>
#include <string>

#include "api/HbaMgmtInterfaces.h"
#include "commands/cache/LbaRangeRequest.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LOCK, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_LUN_SIZE_LBA, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_LUN_START_LBA, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdCacheLock::CmdCacheLock()
{
    declareCommand(*this, rows);
    helpTitle = "Lock Cache";
    helpDescription = "Keeps a range of logical blocks of a cached LUN in the cache.";
    helpSyntax = lbaRangeSyntax(true) + "\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = lbaRangeHelp() + "\n" + lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples =
        ugCommandPrompt() + "-zek=0 -lun_start_lba=0 -lun_size_lba=2048 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected. A LUN holds at most 16 locked ranges.";
}

int CmdCacheLock::execCommand(std::string& err)
{
    LbaRangeRequest request;
    if (int const rc = readLbaRangeRequest(*this, request, err))
        return rc;
    e_MHBA_RETURN const rc = request.addressed.adapter->lockCache(request.lun, static_cast<uint64_t>(request.start),
                                                                  static_cast<uint64_t>(request.size));
    return finishLbaRangeCommand(*this, request, rc,
                                 "Successfully locked cache for LBA range " + std::to_string(request.start) + " to " +
                                     std::to_string(request.size),
                                 err);
}

namespace {

std::string lockLinesOf(HLun& lun)
{
    KLunCacheInfo const& cache = lun.getLunInfo()->cacheInfo;
    PLunID const& id = *lun.getLunId();
    uint32_t const count = std::min<uint32_t>(cache.ui32LockedRangeCount, KLunCacheInfo::MAX_LOCKED_RANGES);
    std::string lines;
    for (uint32_t index = 0; index < count; ++index)
        lines += scriptCommandWords(CmdAction::ACTION_LOCK, CmdItem::ITEM_CACHE) +
            scriptTargetText(id, "-iscsi_target") + " -lun_number=" + std::to_string(id.lunNumber()) +
            " -lun_start_lba=" + std::to_string(cache.lockedRanges[index].ui64StartLba) +
            " -lun_size_lba=" + std::to_string(cache.lockedRanges[index].ui32Size) + "\n";
    return lines;
}

} // namespace

// A LUN a peer adapter caches still has its ranges written: the lock
// lines act on the session's default adapter, whichever that is.
int CmdCacheLock::saveScript(HIsaAdapter* adapter, FILE* file, std::string const&, std::string const&, std::string& err)
{
    std::vector<HLun*> luns;
    if (int const rc = readScriptLuns(*adapter, luns))
        return rc;
    std::string lines;
    for (HLun* lun : luns) {
        KLunInfo const& info = *lun->getLunInfo();
        if (info.isSanLun() && info.isLunCached())
            lines += lockLinesOf(*lun);
    }
    return outScript(file, lines, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
