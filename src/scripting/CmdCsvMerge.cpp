#include "scripting/CmdCsvMerge.h"

#include "commands/CommandDeclaration.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_MERGE, CmdItem::ITEM_CSV, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_CSV_FOLDER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

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
                    "\tFolder holding the CSV files.\n"
                    "-file=<file name>\n"
                    "\tOutput file. Default is the console.";
    helpExamples = ugCommandPrompt() + "-csv_folder=stats -file=summary.csv";
}

int CmdCsvMerge::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
