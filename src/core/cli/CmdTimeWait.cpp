#include "core/cli/CmdTimeWait.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include "commands/CommandDeclaration.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_WAIT, CmdItem::ITEM_TIME, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_SECONDS, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

constexpr int kDefaultSeconds = 5;
// Thirty days less a second.
constexpr long kLongestWait = 2591999;
constexpr char const* kWipeCountDown = "\r        \r";

} // namespace

CmdTimeWait::CmdTimeWait()
{
    declareCommand(*this, rows);
    helpTitle = "Wait Time";
    helpDescription = "Waits for a number of seconds, counting down on the console. Useful in scripts, for "
                      "instance to let an adapter settle after a change before the next command.";
    helpSyntax = "\t[-seconds=<number of seconds>]";
    helpModifiers = "-seconds=<number of seconds>\n"
                    "\tHow long to wait, 1 to 2591999 seconds. Without this keyword the wait is 5 seconds;\n"
                    "\ta value out of range, or none, means no wait.\n";
    helpExamples = ugCommandPrompt() + "\n" + ugCommandPrompt() + "-seconds=60\n";
    helpResultFile = "";
    helpNotes = "";
}

int CmdTimeWait::secondsToWait(bool given, std::string const& value)
{
    if (!given)
        return kDefaultSeconds;
    if (value.empty())
        return 0;
    long const seconds = strtol(value.c_str(), nullptr, 10);
    return seconds >= 1 && seconds <= kLongestWait ? static_cast<int>(seconds) : 0;
}

std::string CmdTimeWait::remainingTimeText(int seconds)
{
    char text[32];
    int const hours = seconds / 3600;
    int const minutes = seconds % 3600 / 60;
    if (hours > 0)
        snprintf(text, sizeof text, "%02d:%02d:%02d", hours, minutes, seconds % 60);
    else
        snprintf(text, sizeof text, "%02d:%02d", minutes, seconds % 60);
    return text;
}

int CmdTimeWait::execCommand(std::string& err)
{
    TokenModifierString const* const quiet = findModifier(ModifierId::MODIFIER_QUIET, err);
    TokenModifierString const* const seconds = quiet ? findModifier(ModifierId::MODIFIER_SECONDS, err) : nullptr;
    if (!seconds)
        return ZEKCLI_PARSE_FAIL;
    bool const show = quiet->isDefault;
    int const total = secondsToWait(!seconds->isDefault, seconds->value);
    if (show)
        putchar('\n');
    for (int left = total; left >= 1; --left) {
        if (show) {
            printf("%s%s", kWipeCountDown, remainingTimeText(left).c_str());
            fflush(stdout);
        }
        usleep(1000000);
    }
    if (show)
        printf("%s", kWipeCountDown);
    return ZEKCLI_OK;
}
