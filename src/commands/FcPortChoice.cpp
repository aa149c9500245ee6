#include "commands/FcPortChoice.h"

#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

int chooseFcPort(TokenCmd& cmd, FcPortChoice& choice, std::string& err)
{
    KIsaAdapterInfo info;
    if (int const rc = findAdapterAndInfo(cmd, choice.addressed, info, err))
        return rc;
    choice.portCount = info.fcPortCount;
    int port = 1;
    if (!cmd.getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_PORT, 1, static_cast<int>(info.fcPortCount),
                                                     port, choice.given, err))
        return ZEKCLI_PARSE_FAIL;
    choice.index = static_cast<uint32_t>(port - 1);
    return 0;
}

int chooseRequiredFcPort(TokenCmd& cmd, FcPortChoice& choice, std::string& err)
{
    if (int const rc = chooseFcPort(cmd, choice, err))
        return rc;
    // The frame asks for required keywords before the command runs; this
    // only guards a caller that runs the command without it.
    if (!choice.given) {
        err = "-port modifier must be specified";
        return ZEKCLI_PARSE_FAIL;
    }
    return 0;
}
