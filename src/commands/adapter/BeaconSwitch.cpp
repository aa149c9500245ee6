#include "commands/adapter/BeaconSwitch.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/FcPortChoice.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"

int switchBeacon(TokenCmd& cmd, bool enable, std::string& err)
{
    FcPortChoice choice;
    if (int const rc = chooseFcPort(cmd, choice, err))
        return rc;
    if (!choice.given) {
        err = "-port is required";
        return ZEKCLI_OUTPUT_FAIL;
    }
    if (int const rc = choice.addressed.adapter->setBeacon(choice.index, enable))
        return rc;
    CommandReport report;
    report.text = "Beacon of FC Port " + std::to_string(choice.index + 1) + " has been " +
        (enable ? "enabled" : "disabled") + " successfully.";
    report.writeResult = false;
    return finishCommand(cmd, choice.addressed.adapter, report, err);
}
