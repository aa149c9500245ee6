#include "scripting/CmdCsvMerge.h"

#include <algorithm>
#include <dirent.h>
#include <sys/stat.h>

#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "core/ZekcliReturn.h"
#include "scripting/CsvMergeReport.h"
#include "scripting/CsvOutputFile.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_MERGE, CmdItem::ITEM_CSV, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CSV_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

bool endsWithCsv(std::string const& name)
{
    static std::string const suffix = ".csv";
    return name.size() >= suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
}

std::string pathInFolder(std::string const& folder, std::string const& name)
{
    return folder.empty() || folder.back() == '/' ? folder + name : folder + "/" + name;
}

// A FIFO would block the merge for ever and a folder has no lines; only
// regular files (or links to them) are read.
bool isRegularFile(std::string const& path)
{
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

CmdCsvMerge::CmdCsvMerge()
{
    declareCommand(*this, rows);
    helpTitle = "Merge CSV";
    helpDescription =
        "Combines the statistics CSV files in a folder into one summary table with one row for each 10 second "
        "window and, per target, columns summed over its LUNs.";
    helpSyntax = "\t[-csv_folder=<folder>]\n"
                 "\t[-file=<file name>]";
    helpModifiers = "-csv_folder=<folder>\n"
                    "\tFolder holding the CSV files. Default is the working directory.\n"
                    "-file=<file name>\n"
                    "\tOutput file. Default is the console.";
    helpExamples = ugCommandPrompt() + "-csv_folder=stats -file=summary.csv";
    helpNotes = "Every regular file of the folder whose name ends in .csv is read; files that are not\n"
                "statistics files are left out.";
}

bool CmdCsvMerge::csvFileNamesOf(std::string const& folder, std::vector<std::string>& names)
{
    names.clear();
    DIR* const dir = opendir(folder.c_str());
    if (!dir)
        return false;
    while (dirent const* entry = readdir(dir)) {
        std::string const name = entry->d_name;
        if (endsWithCsv(name) && isRegularFile(pathInFolder(folder, name)))
            names.push_back(name);
    }
    closedir(dir);
    std::sort(names.begin(), names.end());
    return true;
}

// A folder that cannot be read leaves the report with its titles only.
int CmdCsvMerge::readFolder(std::string const& folder, CsvMergeReport& report, std::string& err)
{
    std::vector<std::string> names;
    if (!csvFileNamesOf(folder, names)) {
        err = "Error opening " + folder;
        return ZEKCLI_OK;
    }
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        if (report.addFile(pathInFolder(folder, *name), err) == CsvMergeReport::MERGE_STOPPED)
            return ZEKCLI_CMD_FAIL;
    }
    return ZEKCLI_OK;
}

int CmdCsvMerge::execCommand(std::string& err)
{
    err.clear();
    TokenModifierString const* const folderKeyword = findModifier(ModifierId::MODIFIER_CSV_FOLDER, err);
    if (!folderKeyword)
        return ZEKCLI_PARSE_FAIL;
    TokenModifierString const* const fileKeyword = findModifier(ModifierId::MODIFIER_FILEPATH, err);
    if (!fileKeyword)
        return ZEKCLI_PARSE_FAIL;
    bool const toFile = !fileKeyword->isDefault;
    std::string const outputName = fileKeyword->value;
    CsvOutputFile output;
    if (toFile && !output.open(outputName, err))
        return ZEKCLI_OUTPUT_FAIL;
    bool const folderGiven = !folderKeyword->isDefault && !folderKeyword->value.empty();
    CsvMergeReport report;
    CommandOutput out(*this);
    int rc = readFolder(folderGiven ? folderKeyword->value : ".", report, err);
    if (rc == ZEKCLI_OK)
        rc = writeReport(report, output, out, err);
    std::string closeErr;
    if (!output.close(closeErr))
        out.fail(closeErr);
    if (rc == ZEKCLI_OK && toFile)
        out.line("CSV output file " + outputName + " created successfully");
    return out.end(rc, err);
}

// To a file as it stands; to the console as displayed text.
int CmdCsvMerge::writeReport(CsvMergeReport& report, CsvOutputFile& output, CommandOutput& out, std::string& err) const
{
    report.buildColumns();
    return report.write(
        [&](std::string const& text, std::string& writeErr) {
            if (!output.isOpen())
                return out.line(text);
            if (output.write(text, writeErr))
                return true;
            out.fail(writeErr);
            return false;
        },
        err);
}
