// Micro benchmarks of menu mode without device work: drawing one menu, and a
// scripted session of many menu steps that runs no command.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "interactive/MenuConsole.h"
#include "interactive/MenuSelection.h"

namespace {

void BM_MenuScreen(benchmark::State& state)
{
    std::vector<std::string> entries;
    for (int64_t i = 0; i < state.range(0); ++i)
        entries.push_back("-zek=2000001B32A1" + std::to_string(1000 + i));
    for (auto _ : state) {
        std::string const screen = menuScreenText(entries, 0, "Please Enter Selection: ", "show lun ");
        benchmark::DoNotOptimize(screen.data());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_MenuScreen)->RangeMultiplier(10)->Range(10, 100000)->Complexity(benchmark::oN);

// 1,000 steps through the main, action and item menus: Information, show,
// back to the main menu; Configuration, back to the main menu.
std::string thousandMenuSteps()
{
    std::string answers;
    for (int round = 0; round < 250; ++round)
        answers += "0\n2\nm\n";
    for (int round = 0; round < 125; ++round)
        answers += "1\nm\n";
    return answers + "q\n";
}

void BM_ScriptedSession1000Steps(benchmark::State& state)
{
    std::string const answers = thousandMenuSteps();
    Parser parser;
    parser.initParsingTree();
    std::string err;
    TokenCmd* const session = parser.root.findCmd(CmdAction::ACTION_INTERACTIVE, CmdItem::ITEM_CLI, err);
    FILE* const screen = fopen("/dev/null", "w");
    FILE* const input = tmpfile();
    if (!session || !screen || !input) {
        state.SkipWithError("no session command, or no scratch files");
        return;
    }
    fwrite(answers.data(), 1, answers.size(), input);
    for (auto _ : state) {
        rewind(input);
        menu_console::ScopedConsole const console(input, screen);
        int const rc = session->execCommand(err);
        benchmark::DoNotOptimize(rc);
    }
    fclose(input);
    fclose(screen);
}
BENCHMARK(BM_ScriptedSession1000Steps)->Unit(benchmark::kMillisecond);

} // namespace
