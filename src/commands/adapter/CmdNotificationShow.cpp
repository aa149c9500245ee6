#include "commands/adapter/CmdNotificationShow.h"

#include <unistd.h>

#include <cstdio>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "api/KAdapterEventNotificationInfo.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_NOTIFICATION, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_INTERVAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

constexpr int kMaxIntervalSeconds = 100000;

} // namespace

CmdNotificationShow::CmdNotificationShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show Notification";
    helpDescription = "Shows the event notifications that the adapters send on their own, such as a link going "
                      "down or a drive failing.";
    helpSyntax = "\t[-interval=<seconds>]";
    helpModifiers = "-interval=<seconds>\n"
                    "\tWatch for notifications without end, looking again after this many\n"
                    "\tseconds, up to 100000. Without it, or with 0, the pending notifications\n"
                    "\tare shown once.";
    helpExamples = ugCommandPrompt() + ugCommandPrompt() + "-interval=10";
    helpNotes = "Interrupt the watch with Ctrl-C.";
}

void CmdNotificationShow::aenCallback(const KAdapterEventNotificationInfo& event)
{
    puts(event.displayText().c_str());
}

std::string CmdNotificationShow::elapsedText(long long seconds)
{
    char text[64];
    long long const hours = seconds / 3600;
    if (hours > 0)
        snprintf(text, sizeof text, "%lld:%02lld:%02lld", hours, seconds / 60 % 60, seconds % 60);
    else
        snprintf(text, sizeof text, "%02lld:%02lld", seconds / 60 % 60, seconds % 60);
    return text;
}

int CmdNotificationShow::execCommand(std::string& err)
{
    int seconds = 0;
    bool given = false;
    if (!getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_INTERVAL, 0, kMaxIntervalSeconds, seconds, given,
                                                 err))
        return ZEKCLI_PARSE_FAIL;
    if (!given)
        seconds = 0;
    if (int const rc = g_pHbaMgmtApi->registerAenCallback(aenCallback))
        return rc;

    CommandOutput out(*this);
    if (seconds == 0) {
        e_MHBA_RETURN const rc = g_pHbaMgmtApi->pollAenEvents();
        if (rc != MHBA_S_OK)
            return rc;
        if (out.result(MHBA_S_OK))
            g_pHbaMgmtApi->unregisterAenCallback(aenCallback);
        return out.end(0, err);
    }
    // Watches until the library fails or the user interrupts the process.
    for (long long elapsed = 0;;) {
        if (int const rc = g_pHbaMgmtApi->pollAenEvents())
            return rc;
        elapsed += seconds;
        if (!out.line(elapsedText(elapsed)))
            return out.end(0, err);
        sleep(static_cast<unsigned int>(seconds));
    }
}
