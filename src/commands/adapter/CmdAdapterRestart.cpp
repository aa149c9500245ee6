#include "commands/adapter/CmdAdapterRestart.h"

#include <unistd.h>

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/RestartWait.h"
#include "core/Parser.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_RESTART, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

} // namespace

CmdAdapterRestart::CmdAdapterRestart()
{
    declareCommand(*this, rows);
    helpTitle = "Restart Adapter";
    helpDescription = "Restarts the adapter and waits until it answers again, for up to about 3 minutes.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

int CmdAdapterRestart::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findAddressedAdapter(*this, target, err))
        return rc;
    if (int const rc = target.adapter->restart(1))
        return rc;
    CommandOutput out(*this);
    if (!out.banner(target.adapter))
        return out.end(0, err);

    RestartWait wait;
    KIsaAdapterInfo info;
    wait.poll = [&] { return target.adapter->getAdapterInfo(info); };
    wait.pause = [](unsigned int seconds) { sleep(seconds); };
    if (!waitUntilAdapterAnswers(wait)) {
        outError("\n\n*** " + Parser::zekcliReturnToText(ZEKCLI_TIMEOUT) + "-- " + " Adapter restarts timeout.\n");
        return 0;
    }
    out.line(" Adapter restarting completed\n");
    out.result(MHBA_S_OK);
    return out.end(0, err);
}
