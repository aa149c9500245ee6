// "script csv": writes one command line per row of a CSV file. Any keyword of
// any command may stand in the template, so this command accepts them all.
#pragma once

#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "scripting/CmdCsvScriptKeyword.h"

class CommandOutput;
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
    // when it is null; false, with the reason in `out`, when the input could
    // not be read or the output not written.
    bool writeScript(CsvFile& input, CsvOutputFile* output, CommandOutput& out, std::string const& csvName,
                     std::string const& commandText) const;

    static std::string doneText(std::string const& csvName, std::string const& scriptName);
    static std::string headerText(std::string const& csvName, std::string const& commandText,
                                  std::vector<CmdCsvScriptKeyword> const& keywords);
    // Empty when a cell the line needs is empty: that row gives no command.
    static std::string commandLineText(std::string const& commandText, std::vector<CmdCsvScriptKeyword> const& keywords,
                                       CsvLineCells const& cells);

private:
    bool writeText(CsvOutputFile* output, CommandOutput& out, std::string const& text, bool displayed) const;
};
