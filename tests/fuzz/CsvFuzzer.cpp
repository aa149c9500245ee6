// Any bytes as a comma separated file: read line by line and cut into cells
// as the CSV reader does, then as the table script csv makes a script from.
// merge csv is left out for now: its report grows with the time between the
// first and the last row, so an input with dates a month apart already takes
// seconds (see docs/reliability.md).
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "fuzz/FuzzHost.h"
#include "scripting/CsvFile.h"

namespace {

void cutEveryLine(std::string const& path)
{
    CsvFile csv;
    std::string err;
    if (!csv.openFile(path, "r", err))
        return;
    while (csv.getNextLine()) {
        // The last cell is handed out without being taken off the rest.
        std::string rest = csv.currentLine();
        for (size_t before = rest.size() + 1; !rest.empty() && rest.size() < before;) {
            before = rest.size();
            CsvFile::parseNextSkipQuotedString(rest, ",");
        }
        CsvLineCells const cells(csv.currentLine());
        for (unsigned index = 0; index < 8; ++index)
            cells.valueAt(index);
        CsvFile::getColumnValueByIndex(csv.currentLine(), 3);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    fuzz::emptyScratchDirectory();
    std::filesystem::create_directory(fuzz::scratchDirectory() + "/in");
    std::string const file = "in/lun0vpg0_5006-0160-39A0-1122.csv";
    if (!fuzz::writeScratchFile(file, std::string(reinterpret_cast<char const*>(data), size)))
        return 0;
    cutEveryLine(fuzz::scratchDirectory() + "/" + file);
    fuzz::runCommandLine("script csv -csv_file=" + file +
                         " -file=made.cfg -cmd=\"enable cache\" -mode=CSV_D -lun_number=csv_a -fc_target=CSV_B");
    return 0;
}
