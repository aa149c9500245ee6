#include "commands/cache/LbaRangeRequest.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/cache/LunKeywordText.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr long long kLargestLba = 0x7FFFFFFFFFFFFFFFll;

} // namespace

int readLbaRangeRequest(TokenCmd& cmd, LbaRangeRequest& request, std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, request.addressed, err))
        return rc;
    err.clear();
    bool found = false;
    if (!cmd.getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_LUN_START_LBA, 0, kLargestLba,
                                                        request.start, found, err))
        return ZEKCLI_PARSE_FAIL;
    if (!found)
        request.start = 0;
    if (!cmd.getI64NumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_LUN_SIZE_LBA, 0, kLargestLba, request.size,
                                                        found, err))
        return ZEKCLI_PARSE_FAIL;
    if (!found)
        request.size = 0;
    std::vector<PLunID> ids;
    if (!cmd.getLunIdFromCommandLine(request.addressed.adapter, false, true, ids, err))
        return ZEKCLI_PARSE_FAIL;
    request.lun = ids.front();
    return 0;
}

int finishLbaRangeCommand(TokenCmd const& cmd, LbaRangeRequest const& request, e_MHBA_RETURN code,
                          std::string const& message, std::string& err)
{
    if (g_pHbaMgmtApi->isFailure(code))
        return code;
    CommandReport report;
    report.text = message + "," + lunKeywordText(request.lun) + "\n";
    report.resultCode = code;
    return finishCommand(cmd, request.addressed.adapter, report, err);
}
