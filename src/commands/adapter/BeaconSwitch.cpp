#include "commands/adapter/BeaconSwitch.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandPattern.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

int switchBeacon(TokenCmd& cmd, bool enable, std::string& err)
{
    AddressedAdapter target;
    KIsaAdapterInfo info;
    if (int const rc = findAdapterAndInfo(cmd, target, info, err))
        return rc;
    int port = 0;
    bool given = false;
    if (!cmd.getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_PORT, 1, static_cast<int>(info.fcPortCount),
                                                     port, given, err))
        return ZEKCLI_PARSE_FAIL;
    if (!given) {
        err = "-port is required";
        return ZEKCLI_OUTPUT_FAIL;
    }
    // The library counts ports from 0, users from 1.
    if (int const rc = target.adapter->setBeacon(static_cast<uint32_t>(port - 1), enable))
        return rc;
    CommandReport report;
    report.text = "Beacon of FC Port " + std::to_string(port) + " has been " + (enable ? "enabled" : "disabled") +
        " successfully.";
    report.writeResult = false;
    return finishCommand(cmd, target.adapter, report, err);
}
