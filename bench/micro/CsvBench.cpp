// Micro benchmarks of the CSV reader's inner steps: cutting a row into its
// cells, and reading one statistics sample (line, date, time, values).
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "scripting/CsvFile.h"
#include "scripting/CsvFileInfo.h"

namespace {

std::string rowOfColumns(int columns)
{
    std::string row;
    for (int c = 0; c < columns; ++c)
        row += (c ? "," : "") + std::string("r12345c") + std::to_string(c);
    return row;
}

void BM_CsvLineCells(benchmark::State& state)
{
    std::string const row = rowOfColumns(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        CsvLineCells const cells(row);
        benchmark::DoNotOptimize(cells.valueAt(static_cast<unsigned>(state.range(0) - 1)).data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(row.size()));
}
BENCHMARK(BM_CsvLineCells)->Arg(4)->Arg(26);

// One LUN statistics file of a day at 10 s, read sample by sample; the time
// is per sample.
void BM_CsvSampleRead(benchmark::State& state)
{
    setenv("TZ", "UTC", 1);
    char path[] = "/tmp/zek-micro-csv-XXXXXX";
    int const fd = mkstemp(path);
    if (fd < 0) {
        state.SkipWithError("no scratch file");
        return;
    }
    FILE* out = fdopen(fd, "w");
    std::fputs("LUN,1,0,5006-0160-39A0-1122,\nDate,Time,Cached\n\n", out);
    for (int r = 0; r < 8640; ++r)
        std::fprintf(out,
                     "11/18/2026,%02d:%02d:%02d,1.000000,%f,50.000000,10.000000,10.000000,60.000000,60.000000,"
                     "%f,%f,%f,%f,2048.000000,512.000000,4096.000000,1024.000000,\n",
                     r * 10 / 3600, r * 10 / 60 % 60, r * 10 % 60, r % 100 * 1.0, 1000.0 + r, 200.0 + r, 8000.0 * r,
                     1600.0 * r);
    std::fclose(out);
    std::string err;
    int64_t samples = 0;
    for (auto _ : state) {
        CsvFileInfo file;
        if (!file.csvOpenFile(path, err)) {
            state.SkipWithError(err.c_str());
            break;
        }
        for (++samples; file.getNextSample(); ++samples)
            benchmark::DoNotOptimize(file.sampleTime.getPosixTime());
    }
    std::remove(path);
    state.SetItemsProcessed(samples);
}
BENCHMARK(BM_CsvSampleRead)->Unit(benchmark::kMillisecond);

} // namespace
