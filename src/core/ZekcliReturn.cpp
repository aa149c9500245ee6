#include "core/ZekcliReturn.h"

// What the command line's own codes mean, in words a script author can use.
char const* zekcliReturnValueText(long code)
{
    switch (code) {
    case ZEKCLI_OK:
        return "CLI Command completed OK";
    case ZEKCLI_INIT_FAIL:
        return "CLI could not start because the API library failed to load";
    case ZEKCLI_PARSE_FAIL:
        return "CLI could not parse the command line input";
    case ZEKCLI_CONFIRM_FAIL:
        return "User was prompted [yes/no] to accept risk, and the answer was not \"yes\"";
    case ZEKCLI_CMD_FAIL:
        return "CLI Command execution failed";
    case ZEKCLI_OUTPUT_FAIL:
        return "CLI Command execution OK, but unable to output results, (e.g. file output required but could not "
               "open file)";
    default:
        return nullptr;
    }
}
