#include "commands/storage/CmdPoolSet.h"

#include "api/HbaMgmtInterfaces.h"
#include "scripting/ScriptSections.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include <algorithm>
#include <cstdint>

#include "api/HIsaAdapter.h"
#include "commands/CommandPattern.h"
#include "core/ZekcliReturn.h"
#include "records/KPoolInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SET, CmdItem::ITEM_POOL, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CACHE, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdPoolSet::CmdPoolSet()
{
    declareCommand(*this, rows);
    helpTitle = "Set Pool";
    helpDescription = "Sets how much of the SSD storage of the adapter serves as cache pool.";
    helpSyntax = "\t-cache=<size>\n" + adapterSyntax();
    helpModifiers = "-cache=<size>\n"
                    "\tPart of the SSD storage used as cache pool, with a unit of KB, MB, GB,\n"
                    "\tTB or PB. A number without a unit counts in GB. At least 4GB.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -cache=200" + ugCommandPrompt() + "-zek=0 -cache=512GB";
}

namespace {

// The adapter refuses a pool size out of its range with this code.
constexpr int kPoolSizeOutOfRange = 156;

// The library takes megabytes in 32 bits. A larger request is sent as the
// largest, which the adapter refuses with its range, rather than wrapped
// round into a small pool that it might accept.
uint32_t megabytesToRequest(unsigned long long bytes)
{
    return static_cast<uint32_t>(std::min<unsigned long long>(bytes >> 20, UINT32_MAX));
}

std::string rangeText(KPoolInfo const& info)
{
    std::string const largest = std::to_string(info.totalSsdStorage >> 30);
    return "Specified cache size must be in range 4GB to " + largest + " ( -cache=" + largest + ")";
}

} // namespace

int CmdPoolSet::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    HIsaAdapter& adapter = *addressed.adapter;
    unsigned long long bytes = 0;
    bool found = false;
    if (!getByteSizeFromCommandLineModifierIfFound(ModifierId::MODIFIER_CACHE, bytes, found, err))
        return ZEKCLI_PARSE_FAIL;

    int const rc = adapter.setPoolSize(megabytesToRequest(bytes));
    if (rc == kPoolSizeOutOfRange) {
        KPoolInfo info;
        if (int const infoRc = adapter.getPoolInfo(info))
            return infoRc;
        err = rangeText(info);
        return rc;
    }
    if (rc != 0)
        return rc;
    CommandReport report;
    report.text = "Pool usage successfully changed.";
    return finishCommand(*this, &adapter, report, err);
}

int CmdPoolSet::saveScript(HIsaAdapter* adapter, FILE* file, std::string const&, std::string const&, std::string& err)
{
    KPoolInfo pool;
    if (int const rc = adapter->getPoolInfo(pool))
        return rc;
    std::string const line = scriptCommandWords(CmdAction::ACTION_SET, CmdItem::ITEM_POOL) +
        " -cache=" + PBase::longlongToMByteText(pool.configuredForCachePool) + "\n";
    return outScript(file, line, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
