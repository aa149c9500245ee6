#include "commands/log/CmdLogView.h"

#include "api/HLogView.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/log/LogPager.h"
#include "core/ZekcliReturn.h"
#include "records/PTime.h"

#include <climits>

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

// A -previous given without a number pages back this far.
constexpr long long kPreviousWithoutNumber = 20;
// The page length a plain "view log" leaves in -previous, which it then
// reads back less one.
char const* const kPlainPageLength = "20";

// Keeps a value for later runs without making the keyword look typed.
void rememberValue(TokenModifierString& keyword, std::string const& text)
{
    bool const typed = !keyword.isDefault;
    keyword.setValue(text);
    keyword.isDefault = !typed;
}

} // namespace

CmdLogView::CmdLogView()
{
    declareCommand(*this, rows);
    helpTitle = "View Log";
    helpDescription =
        "Pages through the event log of the adapter, or of a log file saved by \"save log\", from a position "
        "that is remembered between runs. Without keywords it shows the entries before the newest one, "
        "oldest first.";
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
                    "\tPosition in the log, in entries from -basepos (from \"end\" only 0\n"
                    "\tnames an entry).\n"
                    "-time=\"MM/DD/YYYY HH:MM:SS\"\n"
                    "\tGo back to the newest entry at or before this local time,\n"
                    "\twith the hour 0 to 23.\n"
                    "-find=<text>\n"
                    "\tLook for log entries whose message contains this text (case sensitive).\n"
                    "-severity=<severity>\n"
                    "\tLook for log entries of this severity or worse: fatal, error, warning,\n"
                    "\ttrace, info, debug, system or unknown.\n"
                    "-previous[=<count>]\n"
                    "\tShow the <count> entries before the remembered position, and\n"
                    "\tremember the oldest one shown. Default is 20.\n"
                    "-next[=<count>]\n"
                    "\tShow <count> entries from the remembered position on, and remember\n"
                    "\tthe one after the last shown. Default is 0.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0" + ugCommandPrompt() + "-zek=0 -previous=10" + ugCommandPrompt() +
        "-zek=0 -basepos=start -offset=0 -next=20";
    helpNotes = "-offset needs -basepos. With both -previous and -next, -previous is used. The searches "
                "(-time, -find, -severity) go back from the remembered position, in that order, and the "
                "page is shown from the entry found. The position is remembered only when the command "
                "succeeds.";
}

int CmdLogView::execCommand(std::string& err)
{
    std::string scratch;
    TokenModifierString* const offset = findModifier(ModifierId::MODIFIER_OFFSET, scratch);
    TokenModifierString* const previous = findModifier(ModifierId::MODIFIER_PREVIOUS, scratch);
    if (!offset || !previous) {
        err = scratch;
        return ZEKCLI_PARSE_FAIL;
    }
    // The remembered position and page length change only with a command
    // that succeeds, whatever a failing one typed or wrote into them. This
    // matters where one process runs many commands and keeps what the last
    // left (a script, menu mode); a single command that fails is never kept.
    std::string const offsetBefore = valueBeforeThisLine(*offset, rememberedOffset);
    std::string const previousBefore = valueBeforeThisLine(*previous, rememberedPrevious);
    int const rc = viewLog(err);
    if (rc != 0) {
        offset->value = offsetBefore;
        previous->value = previousBefore;
    }
    rememberedOffset = offset->value;
    rememberedPrevious = previous->value;
    return rc;
}

// A keyword that was not typed still holds what the preferences or the last
// command left. A typed one has lost that value, which is known only when an
// earlier command of this process left it.
std::string CmdLogView::valueBeforeThisLine(TokenModifierString const& keyword,
                                            std::optional<std::string> const& remembered)
{
    if (keyword.isDefault || !remembered)
        return keyword.value;
    return *remembered;
}

int CmdLogView::viewLog(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    err.clear();
    Keywords k;
    if (!findKeywords(kKeywordIds, k.all, err))
        return ZEKCLI_PARSE_FAIL;
    if (k.basepos()->value.empty())
        rememberValue(*k.basepos(), basePositionWords.textFromVal(BASEPOS_END));

    HLogView* view = nullptr;
    LogViewFailure const failure{"    FAIL --> Could not get log -file=" + k.file()->value,
                                 "    FAIL --> Could not get log file"};
    if (int const rc = openLogView(*addressed.adapter, *k.file(), failure, view, err))
        return rc;

    CommandOutput out(*this);
    KLogEntry newest;
    if (!startWalk(out, addressed.adapter, *view, newest)) {
        out.result(0); // skipped when the banner failed
        return out.end(0, err);
    }
    long long const count = view->getCount();
    Page page;
    if (!readPageKeywords(k, count, page, err))
        return ZEKCLI_PARSE_FAIL;
    long long position = 0;
    if (int const rc = startPosition(k, count, page, position, err))
        return rc;

    LogPager pager(*view, count, [&out](std::string const& text) { return out.line(text); });
    if (!pager.startAt(position)) {
        err = "Error getting log entry at saved position";
        return MHBA_E_INVALID_ARG;
    }
    if (!searchOlder(k, *view, pager.current, err))
        return ZEKCLI_PARSE_FAIL;
    if (!showPage(k, page, pager))
        return out.end(0, err);
    rememberValue(*k.offset(), std::to_string(pager.position()));
    out.line("\n");
    out.result(0);
    return out.end(0, err);
}

bool CmdLogView::readPageKeywords(Keywords const& k, long long count, Page& page, std::string& err)
{
    int next = 0, previous = 0, offset = 0;
    int const lastIndex = count - 1 > INT_MAX ? INT_MAX : static_cast<int>(count - 1);
    if (!getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_NEXT, 0, INT_MAX, next, page.nextGiven, err) ||
        !getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_PREVIOUS, 0, INT_MAX, previous,
                                                 page.previousGiven, err) ||
        !getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_OFFSET, 0, lastIndex, offset, page.offsetGiven,
                                                 err))
        return false;
    page.next = next;
    page.offset = offset;
    // A -previous without a number pages back the usual length.
    page.previous = k.previous()->value.empty() ? kPreviousWithoutNumber : previous;
    return true;
}

int CmdLogView::startPosition(Keywords const& k, long long count, Page const& page, long long& position,
                              std::string& err)
{
    // A remembered 0 stands for the newest record, so a walk that ended at
    // the oldest one starts again from the end.
    long long saved = 0;
    if (!page.offsetGiven) {
        saved = leadingNumber(k.offset()->value);
        if (saved == 0)
            saved = count - 1;
    }
    position = count - 1;
    if (keywordGiven(k.basepos())) {
        BASEPOS_TYPE const base = basePositionWords.valFromPartialText(k.basepos()->value, err);
        if (!err.empty())
            return ZEKCLI_PARSE_FAIL;
        if (base == BASEPOS_START)
            position = page.offsetGiven ? page.offset : 0;
        else if (page.offsetGiven)
            position += page.offset; // past the newest record for any offset above 0: refused when read
        return 0;
    }
    if (page.offsetGiven) {
        err = "If -offset is used, -basepos must also be specified";
        return ZEKCLI_PARSE_FAIL;
    }
    if (page.nextGiven || page.previousGiven)
        position = saved;
    else
        rememberValue(*k.previous(), kPlainPageLength);
    return 0;
}

// Each search that is asked for moves the current record to an older one
// that matches, starting from where the one before left it. A search that
// finds nothing leaves it where it was, without a word: the page shown from
// there is the answer.
bool CmdLogView::searchOlder(Keywords const& k, HLogView& view, KLogEntry& current, std::string& err)
{
    KLogEntry found;
    PTime time;
    bool timeGiven = false;
    if (!getTimeFromCommandLineModifierIfFound(time, timeGiven, err))
        return false;
    if (timeGiven && view.findByTime(time, current, found))
        current = found;
    if (keywordGiven(k.find()) && view.findByText(k.find()->value, current, found))
        current = found;
    if (keywordGiven(k.severity())) {
        int severity = 0;
        if (!resolveSeverity(*k.severity(), severity, err))
            return false;
        if (view.findBySeverity(severity, 1, current, found))
            current = found;
    }
    return true;
}

// -previous pages back, and wins over -next; -next alone pages forward; with
// neither the page goes back by the remembered length.
bool CmdLogView::showPage(Keywords const& k, Page const& page, LogPager& pager)
{
    if (page.previousGiven)
        return pager.backward(page.previous);
    if (page.nextGiven)
        return pager.forward(page.next);
    return pager.backward(rememberedPageLength(k.previous()->value));
}
