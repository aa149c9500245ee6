#include "api/MHbaReturnBuffer.h"

#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"

std::string MHbaReturnBuffer::displayText() const
{
    // Code texts exist only in the library; without it, say so rather than
    // fail.
    if (g_pHbaMgmtApi == nullptr)
        return "Return code " + std::to_string(returnCode) + " (management library not loaded)";
    return g_pHbaMgmtApi->returnCodeToText(returnCode);
}
