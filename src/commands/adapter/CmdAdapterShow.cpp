#include "commands/adapter/CmdAdapterShow.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/PIpAddress.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

std::string agentSuffix(KIsaAdapterPath const& path, std::string const& words)
{
    if (!reachedThroughAgent(path))
        return std::string();
    return words + path.ipAddrRemoteAgentHost().displayText();
}

// A local adapter answers to its instance number as well as to its
// identifier, so both names are shown.
std::string adapterNames(KIsaAdapterPath const& path)
{
    std::string text = "\n    -zek=";
    if (path.isLocalDevice())
        text += std::to_string(path.deviceInstanceForAccess()) + agentSuffix(path, " -agent=") + "\n    -zek=";
    return text + path.hbaIDText() + agentSuffix(path, " -agent=");
}

std::string unreachableText(KIsaAdapterPath const& path)
{
    if (path.isLocalDevice())
        return "    *** Error communicating with local ZEK device " + std::to_string(path.deviceInstanceForAccess()) +
            "\n\n";
    return "    *** Error communicating with ZEK device " + path.hbaIDText() + agentSuffix(path, " on remote host ") +
        "\n\n";
}

// The local adapters, scanning first when the library holds none yet.
int collectLocalAdapters(PIpAddress& agent, std::vector<KIsaAdapterPath>& paths, bool& noneFound)
{
    noneFound = false;
    if (g_pHbaMgmtApi->getAdapters()->items.empty())
        if (int const rc = rescanAdapters(agent, noneFound))
            return rc;
    for (HIsaAdapter* adapter : g_pHbaMgmtApi->getAdapters()->items)
        if (adapter->getAdapterPath()->isLocalDevice())
            paths.push_back(*adapter->getAdapterPath());
    return 0;
}

// Appends the block of one adapter. A failure to describe an adapter that
// was found ends the whole listing.
int appendAdapterBlock(KIsaAdapterPath const& path, std::string& text)
{
    HIsaAdapterCollection* const adapters = g_pHbaMgmtApi->getAdapters();
    HIsaAdapter* const adapter = adapters->contains(path) ? adapters->find(path) : nullptr;
    if (!adapter) {
        text += unreachableText(path);
        return 0;
    }
    KClusterID const* const cluster = adapter->getClusterId();
    text += adapterNames(path) + "\n        " + path.displayText() +
        "\n        Cluster Key         = " + (cluster ? cluster->displayText() : KClusterID().displayText()) + "\n";
    KIsaAdapterInfo info;
    if (int const rc = adapter->getAdapterInfo(info))
        return rc;
    text += info.displayText() + "\n\n";
    return 0;
}

} // namespace

CmdAdapterShow::CmdAdapterShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Adapter";
    helpDescription = "Shows the details of the local adapters, or of one adapter.";
    helpSyntax = "\t[-zek=<adapter>]";
    helpModifiers = "-zek=<adapter>\n"
                    "\tShow only this adapter.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-zek=0";
}

int CmdAdapterShow::execCommand(std::string& err)
{
    PIpAddress agent;
    TokenModifierString const* const zek = readScanKeywords(*this, agent, err);
    if (!zek)
        return ZEKCLI_PARSE_FAIL;

    std::vector<KIsaAdapterPath> paths;
    bool noneFound = false;
    if (keywordGiven(zek)) {
        AddressedAdapter named;
        if (int const rc = findAddressedAdapter(*this, named, err))
            return rc;
        named.path = *named.adapter->getAdapterPath();
        if (int const rc = rescanFromAdapter(*this, named, err))
            return rc;
        paths.push_back(named.path);
    } else if (int const rc = collectLocalAdapters(agent, paths, noneFound)) {
        return rc;
    }

    std::string text;
    if (noneFound && paths.empty())
        text = "\n    *** No ZEK found ***\n\n";
    for (KIsaAdapterPath const& path : paths)
        if (int const rc = appendAdapterBlock(path, text))
            return rc;
    return finishCommand(*this, nullptr, CommandReport::withoutBanner(text), err);
}
