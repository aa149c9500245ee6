#include "commands/CommandOutput.h"

#include "api/MhbaReturn.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"

CommandOutput::CommandOutput(TokenCmd const& cmd) : cmd(cmd) {}

bool CommandOutput::banner(HIsaAdapter* adapter)
{
    return failed ? false : remember(cmd.displayIpAddress(adapter, scratch));
}

bool CommandOutput::line(std::string const& text)
{
    return failed ? false : remember(cmd.outDisplay(text, scratch));
}

bool CommandOutput::result(int code, void const* data, unsigned long size)
{
    return failed ? false : remember(cmd.outResult(static_cast<e_MHBA_RETURN>(code), data, size, scratch));
}

void CommandOutput::fail(std::string const& why)
{
    scratch = why;
    remember(false);
}

bool CommandOutput::remember(bool written)
{
    if (!written && !failed) {
        failed = true;
        failure = scratch;
    }
    return !failed;
}

int CommandOutput::end(int code, std::string& err) const
{
    if (!failed)
        return code;
    err = failure;
    return ZEKCLI_OUTPUT_FAIL;
}
