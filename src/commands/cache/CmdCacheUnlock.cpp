#include "commands/cache/CmdCacheUnlock.h"

#include <cstdint>
#include <string>

#include "api/HbaMgmtInterfaces.h"
#include "commands/cache/LbaRangeRequest.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_UNLOCK, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_LUN_SIZE_LBA, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_LUN_START_LBA, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdCacheUnlock::CmdCacheUnlock()
{
    declareCommand(*this, rows);
    helpTitle = "Unlock Cache";
    helpDescription = "Lets a locked range of logical blocks of a cached LUN leave the cache again.";
    helpSyntax = lbaRangeSyntax(true) + "\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = lbaRangeHelp() + "\n" + lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples =
        ugCommandPrompt() + "-zek=0 -lun_start_lba=0 -lun_size_lba=2048 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected.";
}

int CmdCacheUnlock::execCommand(std::string& err)
{
    LbaRangeRequest request;
    if (int const rc = readLbaRangeRequest(*this, request, err))
        return rc;
    e_MHBA_RETURN const rc = request.addressed.adapter->unlockCache(request.lun, static_cast<uint64_t>(request.start),
                                                                    static_cast<uint64_t>(request.size));
    return finishLbaRangeCommand(*this, request, rc,
                                 "Successfully unlocked cache for LBA range " + std::to_string(request.start) + " to " +
                                     std::to_string(request.size),
                                 err);
}
