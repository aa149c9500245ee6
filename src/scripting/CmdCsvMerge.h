// "merge csv": combines the statistics CSV files in a folder into one summary table with one row
// for each 10 second window and, per target, columns summed over its LUNs.
#pragma once

#include <string>
#include <vector>

#include "core/TokenCmd.h"

class CommandOutput;
class CsvMergeReport;
class CsvOutputFile;

class CmdCsvMerge : public TokenCmd {
public:
    CmdCsvMerge();

    int execCommand(std::string& err) override;

    // The names of the regular files in `folder` that end in ".csv", in byte
    // order; false when the folder cannot be read.
    static bool csvFileNamesOf(std::string const& folder, std::vector<std::string>& names);
    // The files of the folder, from the last name to the first. 0, or
    // ZEKCLI_CMD_FAIL when the files cannot all be held open.
    static int readFolder(std::string const& folder, CsvMergeReport& report, std::string& err);

private:
    int writeReport(CsvMergeReport& report, CsvOutputFile& output, CommandOutput& out, std::string& err) const;
};
