#include "scripting/CmdCsvScript.h"

#include <vector>

#include "commands/CommandDeclaration.h"
#include "commands/NotAvailable.h"

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
    return commandNotAvailableYet(*this, err);
}
