#include "scripting/CmdCsvScript.h"

#include <cerrno>
#include <cstring>
#include <vector>

#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "core/ZekcliReturn.h"
#include "scripting/CmdCsvScriptKeywordList.h"
#include "scripting/CsvFile.h"
#include "scripting/CsvOutputFile.h"

namespace {

// Every keyword of the vocabulary, optional and with an optional value, so
// that the template can carry keywords of the command it generates; only the
// CSV input must be named.
std::vector<TokenInitializer::TOKEN_INITIALIZER> csvScriptRows()
{
    std::vector<TokenInitializer::TOKEN_INITIALIZER> rows;
    rows.push_back(commandRow(CmdAction::ACTION_SCRIPT, CmdItem::ITEM_CSV, TokenCmd::GROUP_ORDINARY));
    for (int id = ModifierId::MODIFIER_NONE + 1; id < ModifierId::MODIFIER_COUNT; ++id) {
        int const required = id == ModifierId::MODIFIER_CSV_FILE ? TokenModifier::REQUIRED : TokenModifier::OPTIONAL;
        rows.push_back(keywordRow(static_cast<ModifierId::MODIFIER_ID>(id), required, TokenModifier::VALUE_OPTIONAL));
    }
    rows.push_back(endRow());
    return rows;
}

// The command's own keywords are not carried into the lines it writes.
bool isOwnKeyword(int id)
{
    return id == ModifierId::MODIFIER_CMD || id == ModifierId::MODIFIER_CSV_FILE || id == ModifierId::MODIFIER_FILEPATH;
}

void appendKeyword(std::string& text, CmdCsvScriptKeyword const& keyword)
{
    text += " -";
    text += ModifierId::table().texts()[static_cast<std::size_t>(keyword.id)];
}

} // namespace

CmdCsvScript::CmdCsvScript()
{
    declareCommand(*this, csvScriptRows().data());
    helpTitle = "Script CSV";
    helpDescription = "Creates a script with individual commands for items in one or more columns of a CSV input file.";
    helpSyntax = "\t-csv_file=<CSV file>\n"
                 "\t-file=<script file>\n"
                 "\t-cmd=\"<action> <item>\"\n"
                 "\t[-<keyword>=<value>]\n"
                 "\t[-<keyword>=csv_a | csv_b | ... | csv_z]";
    helpModifiers = "-csv_file=<CSV file>\n"
                    "\tThe comma separated input file; each non-empty line gives one command.\n"
                    "-file=<script file>\n"
                    "\tThe script file to write, which \"execute script\" can run after review.\n"
                    "-cmd=\"<action> <item>\"\n"
                    "\tThe command to generate, for example \"enable cache\".\n"
                    "-<keyword>=<value>\n"
                    "\tAny keyword of the generated command. A value from csv_a to csv_z is\n"
                    "\treplaced by that column of the row (csv_a is the first column); any\n"
                    "\tother value is copied as it stands. A row with an empty cell in a\n"
                    "\tcolumn that is used gives no command.";
    helpExamples = ugCommandPrompt() +
        "-csv_file=luns.csv -file=enable.cfg -cmd=\"enable cache\" -mode=read_write_back"
        " -lun_number=csv_a -fc_target=csv_b -zek=0";
    helpNotes = "-file must name the output file.";
}

int CmdCsvScript::execCommand(std::string& err)
{
    err.clear();
    TokenModifierString const* const csvKeyword = findModifier(ModifierId::MODIFIER_CSV_FILE, err);
    if (!csvKeyword)
        return ZEKCLI_PARSE_FAIL;
    std::string const csvName = csvKeyword->value;
    CsvFile input;
    if (!input.openFile(csvName, "r", err))
        return ZEKCLI_OUTPUT_FAIL;
    TokenModifierString const* const fileKeyword = findModifier(ModifierId::MODIFIER_FILEPATH, err);
    if (!fileKeyword)
        return ZEKCLI_PARSE_FAIL;
    // A name remembered from an earlier run is never written over unasked:
    // without -file the name is empty, and the open below fails.
    std::string const scriptName = fileKeyword->isDefault ? std::string() : fileKeyword->value;
    CsvOutputFile output;
    if (!output.open(scriptName, err))
        return ZEKCLI_OUTPUT_FAIL;
    TokenModifierString const* const cmdKeyword = findModifier(ModifierId::MODIFIER_CMD, err);
    if (!cmdKeyword)
        return ZEKCLI_PARSE_FAIL;
    CommandOutput out(*this);
    writeScript(input, &output, out, csvName, cmdKeyword->value);
    input.closeFile();
    std::string closeErr;
    if (!output.close(closeErr))
        out.fail(closeErr);
    out.line(doneText(csvName, scriptName));
    return out.end(ZEKCLI_OK, err);
}

// With no script file named, the script went to the console.
std::string CmdCsvScript::doneText(std::string const& csvName, std::string const& scriptName)
{
    if (!scriptName.empty())
        return "Script file \"" + scriptName + "\" for CSV file \"" + csvName + "\" created successfully";
    return "Script file successfully output to console for CSV file \"" + csvName + "\"";
}

std::vector<CmdCsvScriptKeyword> CmdCsvScript::collectKeywords() const
{
    static CmdCsvScriptKeywordList const columns;
    std::vector<CmdCsvScriptKeyword> keywords;
    std::string err;
    for (int id = ModifierId::MODIFIER_NONE + 1; id < ModifierId::MODIFIER_COUNT; ++id) {
        TokenModifierString const* const keyword = findModifier(static_cast<ModifierId::MODIFIER_ID>(id), err);
        if (!keyword)
            break;
        if (isOwnKeyword(id) || keyword->isDefault)
            continue;
        // Only the test is without case: the value is written as typed.
        CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE const type =
            columns.valFromExactText(lowerCaseCopy(keyword->value), err);
        keywords.emplace_back(static_cast<ModifierId::MODIFIER_ID>(id), type, keyword->value);
    }
    return keywords;
}

std::string CmdCsvScript::headerText(std::string const& csvName, std::string const& commandText,
                                     std::vector<CmdCsvScriptKeyword> const& keywords)
{
    std::string text =
        "# Script for comma separated value file " + csvName + "\n# >>> script csv -cmd=\"" + commandText + "\"";
    for (CmdCsvScriptKeyword const& keyword : keywords) {
        appendKeyword(text, keyword);
        if (!keyword.value.empty())
            text += "=" + keyword.value;
    }
    return text + "\n#\n";
}

std::string CmdCsvScript::commandLineText(std::string const& commandText,
                                          std::vector<CmdCsvScriptKeyword> const& keywords, CsvLineCells const& cells)
{
    std::string text = "\n" + commandText + " ";
    for (CmdCsvScriptKeyword const& keyword : keywords) {
        appendKeyword(text, keyword);
        if (keyword.value.empty())
            continue;
        std::string const& value = keyword.isColumn() ? cells.valueAt(keyword.column()) : keyword.value;
        if (value.empty())
            return std::string();
        text += '=';
        text += value;
    }
    return text;
}

bool CmdCsvScript::writeScript(CsvFile& input, CsvOutputFile* output, CommandOutput& out, std::string const& csvName,
                               std::string const& commandText) const
{
    std::vector<CmdCsvScriptKeyword> const keywords = collectKeywords();
    if (!writeText(output, out, headerText(csvName, commandText, keywords), true))
        return false;
    while (input.getNextLine()) {
        if (input.currentLine().empty())
            continue;
        if (!writeText(output, out, commandLineText(commandText, keywords, CsvLineCells(input.currentLine())), false))
            return false;
    }
    if (input.readFailed()) {
        out.fail("Unable to read file \"" + csvName + "\", (" + std::strerror(input.readError()) + ")");
        return false;
    }
    return writeText(output, out, "\n", false);
}

// To the console the header is a displayed text and the lines are printed as
// they stand.
bool CmdCsvScript::writeText(CsvOutputFile* output, CommandOutput& out, std::string const& text, bool displayed) const
{
    if (text.empty())
        return true;
    std::string writeErr;
    if (output) {
        if (!output->write(text, writeErr))
            out.fail(writeErr);
        return out.ok();
    }
    if (displayed)
        return out.line(text);
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        out.fail(std::string("Unable to write to the console, (") + std::strerror(errno != 0 ? errno : EIO) + ")");
    return out.ok();
}
