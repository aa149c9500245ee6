#include "commands/CommandPattern.h"

#include <cstring>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandOutput.h"
#include "core/Token.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"
#include "records/PIpAddress.h"

namespace {

constexpr size_t kReplyBytes = 32;

// The commands that scan start from nothing: the adapters and clusters of
// earlier scans are dropped first.
void forgetEarlierScans()
{
    g_pHbaMgmtApi->clearAdapters();
    g_pHbaMgmtApi->clearClusters();
}

} // namespace

int findAddressedAdapter(TokenCmd& cmd, AddressedAdapter& target, std::string& err)
{
    return findAdapterFromKeyword(cmd, ModifierId::MODIFIER_ZEK, target, err);
}

int findAdapterAndInfo(TokenCmd& cmd, AddressedAdapter& target, KIsaAdapterInfo& info, std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, target, err))
        return rc;
    return target.adapter->getAdapterInfo(info);
}

int findAdapterFromKeyword(TokenCmd& cmd, ModifierId::MODIFIER_ID id, AddressedAdapter& target, std::string& err)
{
    target.adapter = nullptr;
    int const rc = cmd.selectAdapterFromKeyword(id, target.path, err);
    if (rc != 0)
        return rc;
    target.adapter = g_pHbaMgmtApi->getAdapters()->find(target.path);
    if (!target.adapter)
        return MHBA_E_ADAPTER_NOT_IN_COLLECTION;
    return 0;
}

int rescanFromAdapter(TokenCmd& cmd, AddressedAdapter& target, std::string& err)
{
    target.adapter = nullptr;
    forgetEarlierScans();
    uint32_t count = 0;
    int const rc = g_pHbaMgmtApi->scanFromAdapter(target.path, &count);
    if (rc != 0)
        return rc;
    return findAddressedAdapter(cmd, target, err);
}

int rescanAdapters(PIpAddress& agent, bool& noneFound)
{
    forgetEarlierScans();
    uint32_t count = 0;
    int const rc = g_pHbaMgmtApi->scanAdapters(agent, &count);
    noneFound = rc == MHBA_E_NO_ADAPTER_FOUND;
    return noneFound ? 0 : rc;
}

TokenModifierString const* readScanKeywords(TokenCmd& cmd, PIpAddress& agent, std::string& err)
{
    if (!readAgentAddress(cmd, agent, err))
        return nullptr;
    return cmd.findModifier(ModifierId::MODIFIER_ZEK, err);
}

bool readAgentAddress(TokenCmd& cmd, PIpAddress& agent, std::string& err)
{
    bool given = false;
    if (!cmd.getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_AGENT, agent, given, err))
        return false;
    if (!given)
        agent.init();
    return true;
}

bool keywordGiven(TokenModifierString const* keyword)
{
    return keyword && !keyword->isDefault;
}

bool reachedThroughAgent(KIsaAdapterPath const& path)
{
    return path.ipAddrRemoteAgentHost().getType() != PIpAddress::IPV_NOT_SET;
}

int finishCommand(TokenCmd const& cmd, HIsaAdapter* adapter, CommandReport const& report, std::string& err)
{
    CommandOutput out(cmd);
    if (report.banner)
        out.banner(adapter);
    out.line(report.text);
    if (report.writeResult)
        out.result(report.resultCode, report.data, report.size);
    return out.end(0, err);
}

std::string readReplyLine(FILE* in)
{
    char buffer[kReplyBytes + 1] = {};
    if (!in || !fgets(buffer, sizeof buffer, in))
        return std::string();
    buffer[strcspn(buffer, "\n")] = '\0';
    return buffer;
}

bool confirmRisk(std::string const& prompt, FILE* in)
{
    fputs(prompt.c_str(), stdout);
    // The reply is typed on the same line, so the prompt must be out first.
    fflush(stdout);
    return readReplyLine(in) == "yes";
}
