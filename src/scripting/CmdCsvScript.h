// "script csv": writes one command line per row of a CSV file. Any keyword of
// any command may stand in the template, so this command accepts them all.
#pragma once

#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "scripting/CmdCsvScriptKeyword.h"

class CsvFile;
class CsvLineCells;
class CsvOutputFile;

class CmdCsvScript : public TokenCmd {
public:
    CmdCsvScript();

    int execCommand(std::string& err) override;

    // The keywords given on the line, in the order of their ids, without the
    // command's own three.
    std::vector<CmdCsvScriptKeyword> collectKeywords() const;

    // Writes the script for the rows of `input` to `output`, or to the console
    // when it is null. 0, or ZEKCLI_OUTPUT_FAIL.
    int writeScript(CsvFile& input, CsvOutputFile* output, std::string const& csvName, std::string const& commandText,
                    std::string& err) const;

    static std::string doneText(std::string const& csvName, std::string const& scriptName);
    static std::string headerText(std::string const& csvName, std::string const& commandText,
                                  std::vector<CmdCsvScriptKeyword> const& keywords);
    // Empty when a cell the line needs is empty: that row gives no command.
    static std::string commandLineText(std::string const& commandText, std::vector<CmdCsvScriptKeyword> const& keywords,
                                       CsvLineCells const& cells);

private:
    bool writeText(CsvOutputFile* output, std::string const& text, bool displayed, std::string& err) const;
};
