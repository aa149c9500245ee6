#include "commands/storage/FcPortSwitch.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/FcPortChoice.h"
#include "core/TokenCmd.h"

int switchFcPort(TokenCmd& cmd, bool enable, std::string& err)
{
    FcPortChoice choice;
    if (int const rc = chooseRequiredFcPort(cmd, choice, err))
        return rc;
    int const rc = choice.addressed.adapter->setFcPortEnabled(choice.index, enable);
    if (rc == MHBA_E_FC_PORT_CANNOT_DISABLE) {
        err = "Port cannot be disabled because FCIP Link is currently configured";
        return rc;
    }
    if (rc != 0)
        return rc;
    CommandReport report;
    report.text = "FC Port " + std::to_string(choice.index + 1) + " successfully " + (enable ? "enabled" : "disabled");
    return finishCommand(cmd, choice.addressed.adapter, report, err);
}
