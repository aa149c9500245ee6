#include "commands/log/CmdLogList.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_LOG, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_FIND, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_SEVERITY, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_CSV_DELIMITER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_CSV_FILE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_PREVIOUS, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    endRow(),
};

} // namespace

CmdLogList::CmdLogList()
{
    declareCommand(*this, rows);
    helpTitle = "List Log";
    helpDescription =
        "Prints the event log of the adapter, or of a log file saved by \"save log\", oldest entry first, "
        "optionally filtered by text or severity.";
    helpSyntax = "\t[-file=<file name>]\n"
                 "\t[-find=<text>]\n"
                 "\t[-severity=<severity>]\n"
                 "\t[-csv_delimiter=<delimiter>]\n"
                 "\t[-csv_file=<file name>]\n"
                 "\t[-previous=<count>]\n" +
        adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tRead this saved log file instead of the log of the adapter.\n"
                    "-find=<text>\n"
                    "\tShow only entries whose message contains this text (case sensitive).\n"
                    "\tWhen given, -severity is not used.\n"
                    "-severity=<severity>\n"
                    "\tShow only entries of this severity or worse: fatal, error,\n"
                    "\twarning, trace, info, debug, system or unknown.\n"
                    "-csv_delimiter=<delimiter>\n"
                    "\tDelimiter between the fields of the CSV file. Default is \",\".\n"
                    "-csv_file=<file name>\n"
                    "\tAlso write the log to this CSV file.\n"
                    "-previous=<count>\n"
                    "\tShow only the newest <count> matching entries.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -severity=error -previous=10" +
        ugCommandPrompt() + "-zek=0 -csv_file=log.csv -csv_delimiter=;";
}

int CmdLogList::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
