#include "statistics/StatisticsLoop.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"

std::string StatisticsLoop::Cycle::clockLine() const
{
    return "\n\n " + clockText(elapsed);
}

StatisticsLoop::StatisticsLoop(TokenCmd const& cmd, HIsaAdapter& adapter, unsigned seconds)
    : cmd(cmd), adapter(adapter), seconds(seconds)
{}

int StatisticsLoop::readInterval(TokenCmd& cmd, unsigned& seconds, std::string& err)
{
    int value = 0;
    bool found = false;
    if (!cmd.getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_INTERVAL, 0, kLongestInterval, value, found,
                                                     err))
        return ZEKCLI_PARSE_FAIL;
    seconds = found ? static_cast<unsigned>(value) : 0;
    return 0;
}

std::string StatisticsLoop::clockText(unsigned long long seconds)
{
    unsigned long long const hours = seconds / 3600;
    char text[48];
    if (hours > 0)
        std::snprintf(text, sizeof text, "%llu:%02llu:%02llu", hours, seconds % 3600 / 60, seconds % 60);
    else
        std::snprintf(text, sizeof text, "%02llu:%02llu", seconds / 60, seconds % 60);
    return text;
}

int StatisticsLoop::run(OnceBody const& once, CycleBody const& cycle, std::string& err) const
{
    if (repeats())
        return loop(cycle, err);
    CommandReport report;
    if (int const rc = once(report, err))
        return rc;
    return finishCommand(cmd, &adapter, report, err);
}

int StatisticsLoop::loop(CycleBody const& body, std::string& err) const
{
    CommandOutput out(cmd);
    Cycle cycle{0, 0, out};
    for (;; ++cycle.number) {
        // Without a terminal to clear, the cycles simply follow one another.
        (void)std::system("clear");
        if (!out.banner(&adapter))
            return out.end(0, err);
        cycle.elapsed += seconds;
        int const rc = body(cycle);
        if (!out.ok())
            return out.end(0, err);
        if (rc != kNextCycle)
            return rc;
        // The loop ends only with the process, so a cycle's text must not
        // wait in a buffer that the interrupt would throw away.
        std::fflush(stdout);
        sleep(seconds);
    }
}
