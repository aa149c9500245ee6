#include "commands/log/CmdLogList.h"

#include "api/HLogView.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/log/LogFilter.h"
#include "core/ZekcliReturn.h"
#include "records/KLogEntry.h"

#include <climits>

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

constexpr ModifierId::MODIFIER_ID kKeywordIds[] = {
    ModifierId::MODIFIER_FILEPATH,      ModifierId::MODIFIER_FIND,     ModifierId::MODIFIER_SEVERITY,
    ModifierId::MODIFIER_CSV_DELIMITER, ModifierId::MODIFIER_CSV_FILE, ModifierId::MODIFIER_PREVIOUS,
};
enum KeywordIndex { FILE_KEYWORD, FIND, SEVERITY, CSV_DELIMITER, CSV_FILE, PREVIOUS };

char const* const kDefaultCsvDelimiter = ",";

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
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    TokenModifierString* k[std::size(kKeywordIds)] = {};
    if (!findKeywords(kKeywordIds, k, err))
        return ZEKCLI_PARSE_FAIL;
    LogFilter filter;
    if (!readFilter(*k[FIND], *k[SEVERITY], filter, err))
        return ZEKCLI_PARSE_FAIL;
    // How many of the newest matches to print; read with the other keywords,
    // so that a bad number is refused before any file is written.
    int newestWanted = 0;
    bool newestWantedGiven = false;
    if (!getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_PREVIOUS, 0, INT_MAX, newestWanted,
                                                 newestWantedGiven, err))
        return ZEKCLI_PARSE_FAIL;

    HLogView* view = nullptr;
    LogViewFailure const failure{"    FAIL --> Could not get HLogView", "    FAIL --> Could not get HLogView"};
    if (int const rc = openLogView(*addressed.adapter, *k[FILE_KEYWORD], failure, view, err))
        return rc;
    if (keywordGiven(k[CSV_FILE])) {
        std::string const delimiter = keywordGiven(k[CSV_DELIMITER]) ? k[CSV_DELIMITER]->value : kDefaultCsvDelimiter;
        if (!view->writeCsvFile(k[CSV_FILE]->value, delimiter)) {
            err = "    FAIL --> Could not write CSV file \"" + k[CSV_FILE]->value + "\"";
            return ZEKCLI_OUTPUT_FAIL;
        }
    }

    CommandOutput out(*this);
    KLogEntry newest;
    if (!startWalk(out, addressed.adapter, *view, newest))
        return out.end(0, err); // an empty log ends here, without a result record
    long long const limit = newestWantedGiven ? static_cast<long long>(newestWanted) - 1 : view->getCount();
    if (filter.printNewest(*view, newest, limit, [&out](std::string const& text) { return out.line(text); }))
        out.result(0);
    return out.end(0, err);
}

// -find wins over -severity; an unknown or ambiguous severity is refused
// with the word matcher's text.
bool CmdLogList::readFilter(TokenModifierString const& find, TokenModifierString const& severity, LogFilter& filter,
                            std::string& err) const
{
    int worst = 0;
    if (keywordGiven(&severity)) {
        if (!resolveSeverity(severity, worst, err))
            return false;
        filter.matchSeverity(worst);
    }
    if (keywordGiven(&find))
        filter.matchText(find.value);
    return true;
}
