#include "commands/cache/CmdCacheFlush.h"

#include <cstdio>
#include <unistd.h>
#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "core/ZekcliReturn.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_FLUSH, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_SYNC, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

// The device is asked about a running flush this often, in seconds.
constexpr unsigned int kFlushPollSeconds = 3;

} // namespace

CmdCacheFlush::CmdCacheFlush()
{
    declareCommand(*this, rows);
    helpTitle = "Flush Cache";
    helpDescription =
        "Writes the dirty data in the cache back to the LUN, for the selected LUNs or for every cached LUN "
        "of the adapter.";
    helpSyntax = lunSelectorSyntax() +
        "\n"
        "\t[-sync]\n" +
        adapterSyntax();
    helpModifiers = lunSelectorHelp() +
        "\n"
        "-sync\n"
        "\tWait until flushing is complete, showing a dot every 3 seconds.\n" +
        adapterHelp();
    helpExamples =
        ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234 -sync";
}

int CmdCacheFlush::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    std::vector<PLunID> ids;
    if (!getLunIdFromCommandLine(addressed.adapter, false, false, ids, err))
        return ZEKCLI_PARSE_FAIL;
    // "No LUNs found ..." is an answer here, not a failure.
    std::string const noLuns = err;
    TokenModifierString const* const sync = findModifier(ModifierId::MODIFIER_SYNC, err);
    if (!sync)
        return ZEKCLI_PARSE_FAIL;
    CommandOutput out(*this);
    if (!out.banner(addressed.adapter))
        return out.end(0, err);

    int code = 0;
    if (ids.empty())
        out.line(noLuns);
    for (PLunID const& lun : ids) {
        if (int const rc = flushOneLun(out, *addressed.adapter, lun, keywordGiven(sync), code))
            return rc;
        // Output that cannot be written ends the walk: no further LUN is flushed.
        if (!out.ok())
            break;
    }
    out.result(code);
    return out.end(0, err);
}

int CmdCacheFlush::flushOneLun(CommandOutput& out, HIsaAdapter& adapter, PLunID const& lun, bool waitForEnd, int& code)
{
    HLun* const held = findLunObject(adapter, lun, LunGathering::EveryTarget);
    if (!held)
        return 0;
    if (int const rc = readLunRecord(*held))
        return rc;
    KLunInfo const& info = *held->getLunInfo();
    if (info.eLunType() != KLunInfo::LUN_TYPE_DIRECT_ACCESS) {
        out.line(lun.displayTextWithoutVpGroup() + " NOT flushed, (" + KLunInfo::lunTypeToText(info.eLunType()) +
                 ")\n");
        return 0;
    }
    if (!info.isLunCached()) {
        out.line(lun.displayText() + " NOT flushed, (SAN Data LUN is not cached)\n");
        return 0;
    }
    code = adapter.startCacheFlush(lun);
    if (code != 0) {
        out.line(lun.displayText() + " NOT flushed, (" + g_pHbaMgmtApi->returnCodeToText(code) + ")\n");
        // Already told in its line; the other LUNs are flushed all the same.
        code = 0;
        return 0;
    }
    if (!waitForEnd) {
        out.line(lun.displayText() + " started flushing\n");
        return 0;
    }
    return waitForFlushEnd(out, adapter, lun, code);
}

int CmdCacheFlush::waitForFlushEnd(CommandOutput& out, HIsaAdapter& adapter, PLunID const& lun, int& code)
{
    if (!out.line(lun.displayText()))
        return 0;
    // The device alone says when the flush is over: a flush of much dirty
    // data may take long, and cutting the wait short would report it done.
    uint32_t inProgress = 0;
    do {
        code = adapter.getCacheFlushProgress(lun, &inProgress);
        if (code != 0)
            return code;
        putchar('.');
        sleep(kFlushPollSeconds);
    } while (inProgress != 0);
    out.line(" flushing completed\n");
    return 0;
}
