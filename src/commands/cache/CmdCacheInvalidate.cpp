#include "commands/cache/CmdCacheInvalidate.h"

#include <cstdint>
#include <string>

#include "api/HbaMgmtInterfaces.h"
#include "commands/cache/LbaRangeRequest.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_INVALIDATE, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    keywordRow(ModifierId::MODIFIER_LUN_SIZE_LBA, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_LUN_START_LBA, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    LUN_SELECTOR_ROWS,
    endRow(),
};

} // namespace

CmdCacheInvalidate::CmdCacheInvalidate()
{
    declareCommand(*this, rows);
    helpTitle = "Invalidate Cache";
    helpDescription =
        "Drops the cached data of a range of logical blocks of one LUN, or of the whole LUN when no range "
        "is given.";
    helpSyntax = lbaRangeSyntax(false) + "\n" + lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = lbaRangeHelp() + "\n" + lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234" + ugCommandPrompt() +
        "-zek=0 -lun_start_lba=0 -lun_size_lba=2048 -lun_number=2 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected.";
}

int CmdCacheInvalidate::execCommand(std::string& err)
{
    LbaRangeRequest request;
    if (int const rc = readLbaRangeRequest(*this, request, err))
        return rc;
    // The adapter takes an end block here, not a count; the sum of two values
    // of at most 2^63-1 still fits in 64 bits unsigned.
    uint64_t const end = static_cast<uint64_t>(request.start) + static_cast<uint64_t>(request.size);
    e_MHBA_RETURN const rc =
        request.addressed.adapter->invalidateCache(request.lun, static_cast<uint64_t>(request.start), end);
    bool const wholeLun = request.start == 0 && request.size == 0;
    std::string const message = wholeLun ? "Successfully invalidated cache for entire range"
                                         : "Successfully invalidated cache for LBA range " +
            std::to_string(request.start) + " to " + std::to_string(end);
    return finishLbaRangeCommand(*this, request, rc, message, err);
}
