// The shape every statistics view shares: shown once, or repeated every
// -interval seconds until the process is interrupted, each cycle on a
// cleared screen under the adapter banner and most of them ending with the
// time the loop has run.
//
//     unsigned seconds = 0;
//     if (int const rc = StatisticsLoop::readInterval(*this, seconds, err))
//         return rc;
//     return StatisticsLoop(*this, *adapter, seconds)
//         .run([&](CommandReport& report, std::string& err) { ... return 0; },   // once
//              [&](StatisticsLoop::Cycle& cycle) {                               // each cycle
//                  cycle.out.line(text + cycle.clockLine());
//                  return StatisticsLoop::kNextCycle;
//              },
//              err);
#pragma once

#include <functional>
#include <string>

#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"

class HIsaAdapter;
class TokenCmd;

class StatisticsLoop {
public:
    static constexpr int kLongestInterval = 100000;
    // What a cycle returns to go on to the next one; any other value ends
    // the loop and is the command's code.
    static constexpr int kNextCycle = -1;

    struct Cycle {
        unsigned long long number;  // 0 for the first cycle
        unsigned long long elapsed; // seconds of all cycles so far, this one included
        CommandOutput& out;         // the banner is out already

        // "\n\n " and the elapsed time, the end of most cycles' text.
        std::string clockLine() const;
    };

    // Fills the report (banner, text, result record) of the single view; a
    // non-zero code is returned as it is, with nothing shown.
    using OnceBody = std::function<int(CommandReport& report, std::string& err)>;
    using CycleBody = std::function<int(Cycle& cycle)>;

    StatisticsLoop(TokenCmd const& cmd, HIsaAdapter& adapter, unsigned seconds);

    // -interval, 0 to 100000; 0 when it is not given. 52 with the keyword's
    // message for a value that is not such a number.
    static int readInterval(TokenCmd& cmd, unsigned& seconds, std::string& err);
    // Hours (and ":") only when there are any, then minutes and seconds of
    // two digits each: "00:05", "59:59", "1:00:00".
    static std::string clockText(unsigned long long seconds);

    bool repeats() const { return seconds > 0; }

    // The single view when the interval is 0, else the loop.
    int run(OnceBody const& once, CycleBody const& cycle, std::string& err) const;
    // Cycles until one returns a code or a write fails (55); an interrupt of
    // the process is the other way out.
    int loop(CycleBody const& cycle, std::string& err) const;

private:
    TokenCmd const& cmd;
    HIsaAdapter& adapter;
    unsigned seconds;
};
