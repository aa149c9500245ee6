#include "commands/NotAvailable.h"

#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"

int commandNotAvailableYet(TokenCmd const& command, std::string& err)
{
    err = "The command \"" + command.ugCommandLowCase() + "\" is not available in this build yet";
    return ZEKCLI_CMD_FAIL;
}
