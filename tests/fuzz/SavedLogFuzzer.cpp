// Any bytes as a saved adapter log: opened as view log and list log open
// one, walked both ways, searched, and written out as a report and as CSV.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

#include "api/SimLogView.h"

namespace {

std::string const& scratchFile()
{
    static std::string const path = [] {
        char pattern[] = "/tmp/zek-fuzz-log-XXXXXX";
        int const fd = mkstemp(pattern);
        if (fd < 0)
            std::abort();
        close(fd);
        return std::string(pattern);
    }();
    return path;
}

void walk(sim::SimLogView& view)
{
    KLogEntry entry;
    KLogEntry next;
    if (view.getFirstEntry(entry)) {
        entry.displayText();
        entry.displayDelimitedText(",");
        while (view.getNextEntry(entry, next)) {
            next.displayText();
            entry = next;
        }
        view.getPreviousEntry(entry, next);
    }
    if (view.getLastEntry(entry)) {
        KLogEntry found;
        view.findBySeverity(2, 1, entry, found);
        view.findByText("e", entry, found);
        view.findByTime(PTime(), entry, found);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    FILE* file = std::fopen(scratchFile().c_str(), "wb");
    if (!file)
        return 0;
    std::fwrite(data, 1, size, file);
    std::fclose(file);
    std::string error;
    std::unique_ptr<sim::SimLogView> view = sim::SimLogView::fromFile(scratchFile(), error);
    if (!view)
        return 0;
    walk(*view);
    view->writeReport("/dev/null");
    view->writeCsvFile("/dev/null", ";");
    return 0;
}
