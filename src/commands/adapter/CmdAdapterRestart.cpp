#include "commands/adapter/CmdAdapterRestart.h"

#include <cstdio>
#include <unistd.h>

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/Parser.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_RESTART, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    endRow(),
};

// The adapter is silent for a while after the request; the first question
// comes only after it has had time to go down.
constexpr unsigned int kSecondsBeforeFirstPoll = 10;
constexpr unsigned int kSecondsBetweenPolls = 3;
constexpr int kMaxPolls = 50;

// Polls until the adapter answers again; false when it stayed silent.
bool waitUntilAdapterAnswers(HIsaAdapter& adapter)
{
    printf("ZEK is restarting...");
    fflush(stdout);
    sleep(kSecondsBeforeFirstPoll);
    KIsaAdapterInfo info;
    for (int polls = 0;;) {
        e_MHBA_RETURN const rc = adapter.getAdapterInfo(info);
        printf(".");
        fflush(stdout);
        sleep(kSecondsBetweenPolls);
        if (++polls > kMaxPolls)
            return false;
        if (rc == MHBA_S_OK)
            return true;
    }
}

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
    if (!displayIpAddress(target.adapter, err))
        return ZEKCLI_OUTPUT_FAIL;

    if (!waitUntilAdapterAnswers(*target.adapter)) {
        outError("\n\n*** " + Parser::zekcliReturnToText(ZEKCLI_TIMEOUT) + "-- " + " Adapter restarts timeout.\n");
        return 0;
    }
    return finishCommand(*this, target.adapter, CommandReport::withoutBanner(" Adapter restarting completed\n"), err);
}
