#include "commands/log/CmdLogView.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_VIEW, CmdItem::ITEM_LOG, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_BASEPOS, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_OFFSET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_TIME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_FIND, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_SEVERITY, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_PREVIOUS, TokenModifier::OPTIONAL, TokenModifier::VALUE_OPTIONAL, "~"),
    keywordRow(ModifierId::MODIFIER_NEXT, TokenModifier::OPTIONAL, TokenModifier::VALUE_OPTIONAL, "~"),
    endRow(),
};

} // namespace

CmdLogView::CmdLogView()
{
    declareCommand(*this, rows);
    helpTitle = "View Log";
    helpDescription =
        "Pages through the event log of the adapter, or of a log file saved by \"save log\", from a position "
        "that is remembered between runs. Without keywords it shows the newest entries.";
    helpSyntax = "\t[-file=<file name>]\n"
                 "\t[-basepos=<position>]\n"
                 "\t[-offset=<entries>]\n"
                 "\t[-time=\"MM/DD/YYYY HH:MM:SS\"]\n"
                 "\t[-find=<text>]\n"
                 "\t[-severity=<severity>]\n"
                 "\t[-previous[=<count>]]\n"
                 "\t[-next[=<count>]]\n" +
        adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tRead this saved log file instead of the log of the adapter.\n"
                    "-basepos=<position>\n"
                    "\tstart or end: where -offset counts from.\n"
                    "-offset=<entries>\n"
                    "\tPosition in the log, in entries from -basepos.\n"
                    "-time=\"MM/DD/YYYY HH:MM:SS\"\n"
                    "\tGo back to the newest entry at or before this local time,\n"
                    "\twith the hour 0 to 23.\n"
                    "-find=<text>\n"
                    "\tLook for log entries whose message contains this text (case sensitive).\n"
                    "-severity=<severity>\n"
                    "\tLook for log entries of this severity or worse: fatal, error, warning,\n"
                    "\ttrace, info, debug, system or unknown.\n"
                    "-previous[=<count>]\n"
                    "\tPage back by <count> entries from the remembered position.\n"
                    "\tDefault is 20.\n"
                    "-next[=<count>]\n"
                    "\tPage forward by <count> entries from the remembered position.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -previous=10" + ugCommandPrompt() +
        "-zek=0 -basepos=start -offset=0 -next=20";
    helpNotes = "-offset needs -basepos.";
}

int CmdLogView::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
