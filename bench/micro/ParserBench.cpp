// Micro benchmarks of the two things every command line pays for before any
// device work: building the token tree and parsing the line into it.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "core/ZekcliReturn.h"

namespace {

// Lines as administrators type them, from the shortest to one with many
// keywords and a quoted value.
struct TypicalLine {
    char const* label;
    char const* text;
};

constexpr TypicalLine kTypicalLines[] = {
    {"version", "version cli -name"},
    {"show_adapter", "show adapter -zek=0"},
    {"list_lun", "list lun -zek=2000001B32A10C00"},
    {"show_lun_by_path", "show lun -lun_number=2 -fc_target=5006-0160-3BE0-1234 -vpgindex=1 -zek=0"},
    {"enable_cache_full",
     "enable cache -zek=0 -mode=read_write_back -profile=default -max_cache=4096 -min_read=4 -max_read=256 "
     "-min_write=4 -max_write=256 -lun_wwuln=6006-0160-A1B2-C3D4-E5F6-0000-0000-0002 -mirror=1"},
    {"abbreviated", "sh lu -lun_w=60060160A1B2C3D4E5F6000000000001 /z:0"},
    {"quoted_value", "set adapter -name=\"zek prod a\" -zek=0"},
};

// The tree reads nothing from the disk when it is built by hand, but a
// Parser looks at HOME for its files; point it at an empty place.
void useScratchHome()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    char pattern[] = "/tmp/zek-micro-XXXXXX";
    if (char const* home = mkdtemp(pattern))
        setenv("HOME", home, 1);
}

void BM_BuildTokenTree(benchmark::State& state)
{
    useScratchHome();
    for (auto _ : state) {
        Parser parser;
        parser.initParsingTree();
        benchmark::DoNotOptimize(parser.root.children.data());
    }
}
BENCHMARK(BM_BuildTokenTree);

void BM_ParseCommandLine(benchmark::State& state, char const* text)
{
    useScratchHome();
    Parser parser;
    parser.initParsingTree();
    parser.commandLine = text;
    std::string err;
    if (parser.parseCommandLine(err) != ZEKCLI_OK) {
        state.SkipWithError(("line does not parse: " + err).c_str());
        return;
    }
    for (auto _ : state) {
        err.clear();
        int const rc = parser.parseCommandLine(err);
        benchmark::DoNotOptimize(rc);
        benchmark::DoNotOptimize(parser.currentCmd);
    }
}

// Folding the argument vector is the other half of what the parser does
// for a line that comes from the shell.
void BM_FoldAndParse(benchmark::State& state, char const* text)
{
    useScratchHome();
    std::vector<std::string> words{"hostcli"};
    std::string rest = text;
    for (std::string::size_type at; (at = rest.find(' ')) != std::string::npos; rest.erase(0, at + 1))
        if (at > 0)
            words.push_back(rest.substr(0, at));
    if (!rest.empty())
        words.push_back(rest);
    std::vector<char*> argv;
    for (std::string& w : words)
        argv.push_back(w.data());
    Parser parser;
    parser.initParsingTree();
    std::string err;
    for (auto _ : state) {
        parser.getCommandLine(static_cast<int>(argv.size()), argv.data());
        err.clear();
        int const rc = parser.parseCommandLine(err);
        benchmark::DoNotOptimize(rc);
    }
}

int registerLines()
{
    for (TypicalLine const& line : kTypicalLines)
        benchmark::RegisterBenchmark((std::string("BM_ParseCommandLine/") + line.label).c_str(), BM_ParseCommandLine,
                                     line.text);
    benchmark::RegisterBenchmark("BM_FoldAndParse/show_lun_by_path", BM_FoldAndParse, kTypicalLines[3].text);
    return 0;
}
int const registered = registerLines();

} // namespace
