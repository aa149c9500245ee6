#include "scripting/CmdScriptExecute.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

#include "api/MhbaReturn.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_EXECUTE, CmdItem::ITEM_SCRIPT, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_CONTINUE_ON_ERROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE, "~"),
    endRow(),
};

// The first characters that make a line a comment.
constexpr char kCommentStarts[] = "#!;/:";

// No command comes near this; a longer line is a wrong file (or one made to
// exhaust memory), and keeping only this much bounds what a script costs.
constexpr size_t kLongestScriptLine = 1024 * 1024;

std::string twoDigits(int value)
{
    return (value < 10 ? "0" : "") + std::to_string(value);
}

// Hours, minutes and seconds of the file name: a zero is written as three
// zeros. Log names already in use by administrators' tooling look like this,
// so the form stays.
std::string timeField(int value)
{
    return value == 0 ? "000" : twoDigits(value);
}

// A keyword counts when it was typed on the line, not merely remembered.
TokenModifierString const* givenKeyword(TokenCmd const& cmd, ModifierId::MODIFIER_ID id, bool& given, std::string& err)
{
    TokenModifierString const* const keyword = cmd.findModifier(id, err);
    given = keyword && !keyword->isDefault;
    return keyword;
}

// A directory opens for reading like a file and then reads as empty, which
// would pass for an empty script; it is refused as an unreadable file.
bool refuseDirectory(FILE* script, std::string const& path, std::string& err)
{
    struct stat status {};
    if (fstat(fileno(script), &status) != 0 || !S_ISDIR(status.st_mode))
        return false;
    err = "Unable to open file \"" + path + "\", (" + std::strerror(EISDIR) + ")";
    return true;
}

} // namespace

void ScriptRunSwitches::appendTo(std::string& line) const
{
    if (quiet)
        line += " -quiet";
    if (showOnlyError)
        line += " -show_only_error";
    if (echo)
        line += " -echo";
    if (textFile)
        line += " -text=\"" + textFileName + "\"";
}

CmdScriptExecute::CmdScriptExecute()
{
    declareCommand(*this, rows);
    helpTitle = "Execute Script";
    helpDescription = "Executes a list of Host CLI commands read in from a file ";
    helpSyntax = "\t-file=<file name>\n"
                 "\t[-continue_on_error]";
    helpModifiers = "-file=<file name>\n"
                    "\tThe script: one command per line. Lines starting with one of\n"
                    "\t# ! ; / : are comments.\n"
                    "-continue_on_error\n"
                    "\tGo on with the next line when a line of the script fails.";
    helpExamples = ugCommandPrompt() + "-file=adapter0.cfg" + ugCommandPrompt() +
        "-file=adapter0.cfg -continue_on_error -textfile";
    helpNotes = "-quiet, -show_only_error, -echo and -textfile are added to every line of the script.";
}

bool CmdScriptExecute::isSkippedLine(std::string const& line)
{
    return line.empty() || std::strchr(kCommentStarts, line[0]) != nullptr;
}

std::string CmdScriptExecute::textFileNameFor(std::string const& scriptPath, std::tm const& local)
{
    std::string::size_type const dot = scriptPath.rfind('.');
    std::string name = dot == std::string::npos ? scriptPath : scriptPath.substr(0, dot);
    name += "_" + std::to_string(local.tm_year + 1900) + twoDigits(local.tm_mon + 1) + twoDigits(local.tm_mday);
    name += "_" + timeField(local.tm_hour) + timeField(local.tm_min) + timeField(local.tm_sec);
    return name + ".log";
}

bool CmdScriptExecute::readSwitches(std::string const& scriptPath, ScriptRunSwitches& switches, std::string& err) const
{
    if (!givenKeyword(*this, ModifierId::MODIFIER_CONTINUE_ON_ERROR, switches.continueOnError, err) ||
        !givenKeyword(*this, ModifierId::MODIFIER_QUIET, switches.quiet, err) ||
        !givenKeyword(*this, ModifierId::MODIFIER_SHOW_ONLY_ERROR, switches.showOnlyError, err) ||
        !givenKeyword(*this, ModifierId::MODIFIER_ECHO, switches.echo, err))
        return false;
    TokenModifierString const* const text = givenKeyword(*this, ModifierId::MODIFIER_TEXTFILE, switches.textFile, err);
    if (!text)
        return false;
    if (!switches.textFile)
        return true;
    // One name for the whole run, so that every line writes to one file.
    switches.textFileName = text->value;
    if (switches.textFileName.empty()) {
        std::time_t const now = std::time(nullptr);
        std::tm local{};
        localtime_r(&now, &local);
        switches.textFileName = textFileNameFor(scriptPath, local);
    }
    return true;
}

int CmdScriptExecute::runLines(FILE* script, ScriptRunSwitches const& switches, std::string& err)
{
    TokenRoot* const root = rootOfTree(this);
    unsigned int lineNumber = 0;
    int failing = ZEKCLI_OK;
    std::string line;
    bool tooLong = false;
    while (failing == ZEKCLI_OK && readLineFromFilePointer(script, line, kLongestScriptLine, tooLong)) {
        ++lineNumber;
        if (tooLong) {
            err = "Line " + std::to_string(lineNumber) + " is longer than " + std::to_string(kLongestScriptLine) +
                " bytes";
            failing = ZEKCLI_PARSE_FAIL;
        } else if (isSkippedLine(line)) {
            continue;
        } else {
            switches.appendTo(line);
            failing = root->execOneCommandLine(line, err, lineNumber);
        }
        // The parser records no command for a line it could not read.
        if (failing == ZEKCLI_PARSE_FAIL)
            root->stats.add("******", "Parse Error", ZEKCLI_PARSE_FAIL, lineNumber);
        if (switches.continueOnError)
            failing = ZEKCLI_OK;
    }
    return failing;
}

int CmdScriptExecute::reportRun(std::string const& scriptPath, int failing, std::string& err) const
{
    // The failing line's own message stays in `err` for the caller to show;
    // only a failure of this output replaces it.
    CommandOutput out(*this);
    std::string const outcome = failing != ZEKCLI_OK ? "\" failed to complete" : "\" completed OK";
    if (!out.banner(nullptr) || !out.line("Script \"" + scriptPath + outcome))
        return out.end(failing, err);
    outError(rootOfTree(this)->stats.displayText());
    out.result(failing != ZEKCLI_OK ? MHBA_E_FAILURE : MHBA_S_OK);
    return out.end(failing, err);
}

int CmdScriptExecute::execCommand(std::string& err)
{
    err.clear();
    if (!rootOfTree(this)) {
        err = "The command is not part of a command tree";
        return ZEKCLI_CMD_FAIL;
    }
    TokenModifierString const* const file = findModifier(ModifierId::MODIFIER_FILEPATH, err);
    if (!file)
        return ZEKCLI_PARSE_FAIL;
    // Copied: a line of the script may give this very keyword a new value.
    std::string const scriptPath = file->value;
    if (int const rc = refuseNesting(scriptPath, err))
        return rc;
    FILE* script = nullptr;
    if (!safe_fopen(&script, scriptPath, "r", err))
        return ZEKCLI_PARSE_FAIL;
    runningScripts.push_back(identityOf(script));
    int const rc = runScript(script, scriptPath, err);
    runningScripts.pop_back();
    std::fclose(script);
    return rc;
}

int CmdScriptExecute::refuseNesting(std::string const& scriptPath, std::string& err) const
{
    // A file that cannot be looked at is left to the opening, which says why.
    struct stat status {};
    bool const known = stat(scriptPath.c_str(), &status) == 0;
    if (known && isRunning({status.st_dev, status.st_ino})) {
        err = "Script " + scriptPath + " is already running; scripts may not execute themselves.";
        return ZEKCLI_PARSE_FAIL;
    }
    if (runningScripts.size() >= MAX_NESTING) {
        err = "Scripts are nested too deeply (more than " + std::to_string(MAX_NESTING) + " levels).";
        return ZEKCLI_PARSE_FAIL;
    }
    return ZEKCLI_OK;
}

bool CmdScriptExecute::isRunning(FileIdentity const& identity) const
{
    return std::find(runningScripts.begin(), runningScripts.end(), identity) != runningScripts.end();
}

CmdScriptExecute::FileIdentity CmdScriptExecute::identityOf(FILE* script)
{
    struct stat status {};
    fstat(fileno(script), &status);
    return {status.st_dev, status.st_ino};
}

int CmdScriptExecute::runScript(FILE* script, std::string const& scriptPath, std::string& err)
{
    ScriptRunSwitches switches;
    if (refuseDirectory(script, scriptPath, err) || !readSwitches(scriptPath, switches, err))
        return ZEKCLI_PARSE_FAIL;
    int const failing = runLines(script, switches, err);
    return reportRun(scriptPath, failing, err);
}
