// The merged statistics report: statistics files sampled independently are
// brought onto one grid of 10 second windows, with four columns per target
// summed over the target's LUN files. Files are read one sample at a time, so
// memory holds one line per file and one value per column and file, however
// long the files are.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "records/PTime.h"
#include "scripting/CsvFileInfo.h"
#include "scripting/CsvReportColumn.h"

class CsvMergeReport {
public:
    // Writes one piece of the report; false with the reason in `err`.
    using Writer = std::function<bool(std::string const& text, std::string& err)>;

    static constexpr long long kWindowSeconds = 10;
    // Ten years of 365.25 days. A grid longer than this is a mistake in the
    // data (a clock set wrong, a far date), not a measurement, and would
    // write hundreds of millions of rows.
    static constexpr long long kLongestSpanSeconds = 315576000;

    enum ADD_RESULT { FILE_KEPT, FILE_DROPPED, MERGE_STOPPED };

    // Keeps the file when it is a statistics file with a sample, drops it
    // quietly otherwise. Running out of file handles stops the merge rather
    // than leave files out of it unnoticed.
    ADD_RESULT addFile(std::string const& path, std::string& err);
    // Four columns for every target, in the order the LUN files name them.
    void buildColumns();

    // Titles, one row per window, then the last text once more. 0, or
    // ZEKCLI_OUTPUT_FAIL when the writer fails, or ZEKCLI_CMD_FAIL when the
    // samples lie too far apart.
    int write(Writer const& writer, std::string& err);

    std::vector<CsvReportColumn> const& reportColumns() const { return columns; }
    std::size_t fileCount() const { return inputs.size(); }

    std::string titleText() const;
    std::string rowText() const;

private:
    struct Input {
        std::unique_ptr<CsvFileInfo> file;
        std::vector<std::size_t> fedColumns; // the columns that take this file's values
    };

    void startWindow();
    PTime const& earliestSampleTime() const; // of a non-empty list
    void advanceWindow();
    void drainWindow();
    bool takeSamplesInWindow();
    void feedColumns(Input& input);
    void advanceUsedFiles();
    bool spanTooLong(std::string& err) const;

    std::vector<Input> inputs;
    std::vector<CsvReportColumn> columns;
    PTime firstWindowStart;
    PTime windowStart;
    PTime windowEnd;
};
