// The -agent keyword: its text becomes an address through the management
// library, which alone knows how to read addresses; every device command
// first checks that a named agent answers.
#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "records/PIpAddress.h"

bool TokenCmd::getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_ID id, PIpAddress& address, bool& found,
                                                          std::string& err)
{
    TokenModifierString* const keyword = findModifier(id, err);
    if (!keyword)
        return false;
    found = !keyword->isDefault;
    if (!found)
        return true;
    if (g_pHbaMgmtApi->textToIpAddress(keyword->value, address, err))
        return true;
    // A bad value is not offered again as a default.
    keyword->setValue(std::string());
    return false;
}

e_MHBA_RETURN TokenCmd::testAgentConnectionIfAny(PIpAddress& agent, std::string& err)
{
    agent.init();
    bool found = false;
    if (!getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_AGENT, agent, found, err))
        return MHBA_E_BAD_AGENT_ADDRESS;
    if (!found)
        return MHBA_S_OK;
    return g_pHbaMgmtApi->testAgentConnection(agent, err);
}
