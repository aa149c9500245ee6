// Turning -zek (or another keyword that names an adapter) into a reachable
// adapter path. The value may be a device instance, an adapter identifier or
// a symbolic name; they are tried in that order, cheapest first, and only a
// name that no adapter known so far bears costs a scan.
#include <cstdio>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "records/KIsaAdapterPath.h"
#include "records/PIpAddress.h"

namespace {

constexpr size_t kMaxAdapterIdText = 32;

bool isSingleDigit(std::string const& text)
{
    return text.size() == 1 && text[0] >= '0' && text[0] <= '9';
}

e_MHBA_RETURN checkLocalDevice(KIsaAdapterPath& path, int instance, PIpAddress const& agent)
{
    path.init(0, instance, true, agent, KIsaAdapterPath::ADAPTER_TYPE_1);
    return g_pHbaMgmtApi->checkAdapterPath(path);
}

// An adapter identifier reached through the SAN. When the text holds no
// number the path stays as the earlier attempts left it and is checked as
// it is.
e_MHBA_RETURN checkAdapterIdentifier(KIsaAdapterPath& path, std::string const& text, PIpAddress const& agent)
{
    unsigned long long id = 0;
    if (std::sscanf(text.c_str(), "%llx", &id) == 1)
        path.init(id, KIsaAdapterPath::NO_DEVICE_INSTANCE, false, agent, KIsaAdapterPath::ADAPTER_TYPE_1);
    return g_pHbaMgmtApi->checkAdapterPath(path);
}

} // namespace

e_MHBA_RETURN TokenCmd::selectAdapter(KIsaAdapterPath& path, std::string& err)
{
    return selectAdapterFromKeyword(ModifierId::MODIFIER_ZEK, path, err);
}

e_MHBA_RETURN TokenCmd::selectAdapterFromKeyword(ModifierId::MODIFIER_ID id, KIsaAdapterPath& path, std::string& err)
{
    path.init();
    err.clear();
    PIpAddress agent;
    bool agentGiven = false;
    if (!getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_AGENT, agent, agentGiven, err))
        return MHBA_E_BAD_AGENT_ADDRESS;
    if (!agentGiven)
        agent.init();

    TokenModifierString* const keyword = findModifier(id, err);
    if (!keyword)
        return MHBA_E_FAILURE;
    std::string const value = keyword->value;

    if (keyword->isDefault || value.empty()) {
        if (keyword->requiredKind == TokenModifier::REQUIRED) {
            err += "-zek must be used to specify a locally connected ZEK or an ZEK in the SAN";
            return MHBA_E_INVALID_ARG;
        }
        // Without a choice the host's first device is meant.
        if (checkLocalDevice(path, 0, agent) == MHBA_S_OK)
            return MHBA_S_OK;
    }
    if (isSingleDigit(value)) {
        if (checkLocalDevice(path, value[0] - '0', agent) == MHBA_S_OK)
            return MHBA_S_OK;
    }
    if (value.size() <= kMaxAdapterIdText && isAllHexDigits(value)) {
        if (checkAdapterIdentifier(path, value, agent) == MHBA_S_OK)
            return MHBA_S_OK;
    }

    HIsaAdapter* adapter = g_pHbaMgmtApi->getAdapters()->findBySymbolicName(value);
    if (!adapter) {
        uint32_t count = 0;
        e_MHBA_RETURN const scanned = g_pHbaMgmtApi->scanAdapters(agent, &count);
        if (scanned != MHBA_S_OK)
            return scanned;
        adapter = g_pHbaMgmtApi->getAdapters()->findBySymbolicName(value);
        // The path of the last failed attempt gives the code; its own
        // check says what went wrong, so no words are added.
        if (!adapter)
            return g_pHbaMgmtApi->checkAdapterPath(path);
    }

    path = *adapter->getAdapterPath();
    e_MHBA_RETURN const reached = g_pHbaMgmtApi->checkAdapterPath(path);
    if (reached != MHBA_S_OK) {
        err += "-zek=" + value + " does not match any locally connected ZEK or any ZEK found in the SAN";
        return reached;
    }
    return g_pHbaMgmtApi->checkAdapterPath(path);
}
