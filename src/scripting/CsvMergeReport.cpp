#include "scripting/CsvMergeReport.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <unordered_map>
#include <utility>

#include "core/ZekcliReturn.h"

namespace {

// The four columns of a target: which value of a sample each one takes.
struct TargetColumn {
    int32_t sampleIndex;
    char const* title;
};

constexpr TargetColumn kTargetColumns[] = {
    {0, "Read Block/sec"},
    {1, "Write Block/sec"},
    {2, "Read I/O/sec"},
    {3, "Write I/O/sec"},
};

static_assert(std::size(kTargetColumns) <= CsvFileInfo::kGrowingValues,
              "a column must not read a value that later samples stop appending");

void appendFixed(std::string& out, double value)
{
    char buffer[64];
    int const length = std::snprintf(buffer, sizeof buffer, "%f", value);
    if (length < 0)
        return;
    if (static_cast<std::size_t>(length) < sizeof buffer) {
        out.append(buffer, static_cast<std::size_t>(length));
        return;
    }
    // Numbers near the limits of a double run to hundreds of digits.
    std::string wide(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(wide.data(), wide.size(), "%f", value);
    out.append(wide.data(), static_cast<std::size_t>(length));
}

void addSeconds(PTime& time, long long seconds)
{
    time.initFromPosixTime(static_cast<long>(time.getPosixTime() + seconds));
}

std::string dateAndTime(PTime const& time)
{
    return time.displayLocalDate() + " " + time.displayLocalTime();
}

} // namespace

CsvMergeReport::ADD_RESULT CsvMergeReport::addFile(std::string const& path, std::string& err)
{
    auto file = std::make_unique<CsvFileInfo>();
    // Only the open itself sets these codes; reading a file that did open
    // never does.
    errno = 0;
    if (file->csvOpenFile(path, err)) {
        inputs.push_back(Input{std::move(file), {}});
        return FILE_KEPT;
    }
    return errno == EMFILE || errno == ENFILE ? MERGE_STOPPED : FILE_DROPPED;
}

void CsvMergeReport::buildColumns()
{
    columns.clear();
    std::unordered_map<std::string, std::size_t> firstColumnOfTarget;
    for (Input const& input : inputs) {
        if (input.file->fileType != CsvFileInfo::CSV_FILE_LUN)
            continue;
        std::string const target = input.file->getFileIdentificationPart(3);
        if (!firstColumnOfTarget.emplace(target, columns.size()).second)
            continue;
        for (TargetColumn const& column : kTargetColumns)
            columns.emplace_back(CsvReportColumn::COLUMN_TARGET_LUNS, "Target " + target, column.title,
                                 column.sampleIndex, target);
    }
    // Only a file naming a target can feed that target's columns; asking just
    // those keeps thousands of files and targets from multiplying.
    for (Input& input : inputs) {
        input.fedColumns.clear();
        auto const found = firstColumnOfTarget.find(input.file->getFileIdentificationPart(3));
        if (found == firstColumnOfTarget.end())
            continue;
        for (std::size_t c = found->second; c < found->second + std::size(kTargetColumns); ++c) {
            if (columns[c].acceptsFile(input.file->fileIdentification))
                input.fedColumns.push_back(c);
        }
    }
}

std::string CsvMergeReport::titleText() const
{
    std::string groups = ",,";
    std::string titles = "\nDate,Time,";
    std::string const* previousGroup = nullptr;
    for (CsvReportColumn const& column : columns) {
        if (!previousGroup || *previousGroup != column.groupTitle)
            groups += column.groupTitle;
        groups += ",";
        previousGroup = &column.groupTitle;
        titles += column.columnTitle + ",";
    }
    return groups + titles + "\n";
}

std::string CsvMergeReport::rowText() const
{
    std::string row = windowStart.displayLocalDate() + "," + windowStart.displayLocalTime() + ",";
    for (CsvReportColumn const& column : columns) {
        appendFixed(row, column.sumSamples());
        row += ",";
    }
    return row + "\n";
}

int CsvMergeReport::write(Writer const& writer, std::string& err)
{
    startWindow();
    std::string last = titleText();
    if (!writer(last, err))
        return ZEKCLI_OUTPUT_FAIL;
    while (!inputs.empty()) {
        drainWindow();
        last = rowText();
        if (!writer(last, err))
            return ZEKCLI_OUTPUT_FAIL;
        advanceWindow();
        if (spanTooLong(err))
            return ZEKCLI_CMD_FAIL;
    }
    // The report ends with its last text twice, a form its readers know.
    return writer(last, err) ? ZEKCLI_OK : ZEKCLI_OUTPUT_FAIL;
}

// The first window starts at the earliest sample of all files; without files
// the window keeps its blank state.
void CsvMergeReport::startWindow()
{
    windowStart.init();
    windowEnd.init();
    if (inputs.empty())
        return;
    windowStart = earliestSampleTime();
    windowEnd = windowStart;
    addSeconds(windowEnd, kWindowSeconds);
    firstWindowStart = windowStart;
}

PTime const& CsvMergeReport::earliestSampleTime() const
{
    auto const earlier = [](Input const& a, Input const& b) { return a.file->sampleTime < b.file->sampleTime; };
    return std::min_element(inputs.begin(), inputs.end(), earlier)->file->sampleTime;
}

void CsvMergeReport::advanceWindow()
{
    addSeconds(windowStart, kWindowSeconds);
    addSeconds(windowEnd, kWindowSeconds);
}

// Takes every sample up to the window's end, both ends included, file by file
// until none is left in the window. A sample older than the window (a clock
// set back) goes into this window rather than stall the grid.
void CsvMergeReport::drainWindow()
{
    while (takeSamplesInWindow())
        advanceUsedFiles();
}

// Every file with a sample in the window moves on, also one that feeds no
// column: its samples still drive the grid.
bool CsvMergeReport::takeSamplesInWindow()
{
    bool any = false;
    for (Input& input : inputs) {
        if (input.file->sampleTime > windowEnd)
            continue;
        feedColumns(input);
        input.file->sampleUsed = true;
        any = true;
    }
    return any;
}

// A sample too short for a column's index gives that column nothing.
void CsvMergeReport::feedColumns(Input& input)
{
    CsvFileInfo const& file = *input.file;
    for (std::size_t const c : input.fedColumns) {
        CsvReportColumn& column = columns[c];
        if (column.sampleIndex >= 0 && static_cast<std::size_t>(column.sampleIndex) < file.sampleValues.size())
            column.putAcceptedSample(file.fileIdentification, file.sampleValues[column.sampleIndex]);
    }
}

void CsvMergeReport::advanceUsedFiles()
{
    for (Input& input : inputs) {
        if (input.file->sampleUsed && !input.file->getNextSample())
            input.file.reset();
    }
    std::erase_if(inputs, [](Input const& input) { return !input.file; });
}

bool CsvMergeReport::spanTooLong(std::string& err) const
{
    if (inputs.empty())
        return false;
    PTime const& next = earliestSampleTime();
    if (next.getPosixTime() - firstWindowStart.getPosixTime() <= kLongestSpanSeconds)
        return false;
    err = "The CSV samples lie more than 10 years apart (" + dateAndTime(firstWindowStart) + " and " +
        dateAndTime(next) + "); the merge was stopped";
    return true;
}
