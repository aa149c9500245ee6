// Turns one command text into the state of the token tree: the command is
// found by action and item, and each keyword's value is stored in its token.
//
//   command line = action [item] { keyword }
//   keyword      = ("-" | "/") name [ ("=" | ":") value ]
#include "core/Parser.h"

#include <algorithm>

#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandTable.h"
#include "core/MyMsgHandler.h"
#include "core/TextRules.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr char const* kBlankOrTab = " \t";
constexpr unsigned int kProgressIntervalMs = 2000;
constexpr char const* kAppendRecursionText =
    "Command line got too long, most likely because -append=<name> expanded to a command line that "
    "included \"-append=<same set name>\", causing an infinite recursion";

bool isKeywordPrefix(char c)
{
    return c == '-' || c == '/';
}

bool isValuePrefix(char c)
{
    return c == '=' || c == ':';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// A value that starts like a keyword is not a value: "-textfile=-quiet" is
// -textfile with its default, then -quiet. A "-" before a digit is a sign.
bool looksLikeKeyword(std::string const& text)
{
    if (text.empty())
        return false;
    if (text[0] == '/')
        return true;
    return text[0] == '-' && !(text.size() > 1 && isDigit(text[1]));
}

std::string quoted(std::string const& text)
{
    return "\"" + text + "\"";
}

// An argument "name=value" as it must appear in the folded command text, so
// that the value survives the parser as one word.
std::string foldedArgument(std::string const& argument)
{
    std::string::size_type const equals = argument.find('=');
    if (equals == std::string::npos)
        return argument;
    std::string value = argument.substr(equals + 1);
    // A value of nothing but blanks folds to an empty one.
    if (!value.empty() && (value[0] == ' ' || value[0] == '\t')) {
        std::string::size_type const first = value.find_first_not_of(kBlankOrTab);
        value = first == std::string::npos ? std::string() : value.substr(first);
    }
    bool const needsQuotes = value.find_first_of(kBlankOrTab) != std::string::npos ||
        (!value.empty() && isKeywordPrefix(value[0]) && value.find('/') != std::string::npos);
    if (needsQuotes)
        return argument.substr(0, equals) + "=" + quoted(value);
    return argument;
}

} // namespace

// The library reports messages and progress of this run through our handler.
Parser::Parser() : msgHandler(new MyMsgHandler(&root))
{
    msgHandler->progressIntervalMs = kProgressIntervalMs;
    if (g_pHbaMgmtApi)
        g_pHbaMgmtApi->registerMsgHandler(msgHandler);
}

Parser::~Parser()
{
    if (g_pHbaMgmtApi)
        g_pHbaMgmtApi->unregisterMsgHandler(msgHandler);
    delete msgHandler;
}

void Parser::getCommandLine(int argc, char** argv)
{
    commandLine.clear();
    for (int i = 1; i < argc; ++i) {
        if (!argv || !argv[i])
            continue;
        commandLine += foldedArgument(argv[i]) + " ";
    }
}

bool Parser::parseToken(std::string& line, std::string& token, char& prefix)
{
    token.clear();
    prefix = 0;
    dropLeadingWhitespace(line);
    if (line.empty())
        return true;
    if (isKeywordPrefix(line[0]) || isValuePrefix(line[0])) {
        prefix = line[0];
        line.erase(0, 1);
        dropLeadingWhitespace(line);
        if (line.empty())
            return false;
    }
    if (line[0] == '"' || line[0] == '\'') {
        char const quote = line[0];
        line.erase(0, 1);
        std::string::size_type const close = line.find(quote);
        if (close == std::string::npos)
            return false;
        token = line.substr(0, close);
        line.erase(0, close + 1);
    } else {
        // After "=" or ":" a value may hold "/", "-", "=" and ":". Anywhere
        // else these end the word, so that "/lun_number:1" is a keyword and
        // its value.
        std::string stopSet = kCommandLineWhitespace;
        if (!isValuePrefix(prefix))
            stopSet += "=:/-";
        std::string::size_type const stop = line.find_first_of(stopSet);
        token = line.substr(0, stop);
        line.erase(0, stop == std::string::npos ? line.size() : stop);
    }
    dropLeadingWhitespace(line);
    return true;
}

bool Parser::parseCmdToken(std::string& line, CmdAction::CMD_ACTION& action, CmdItem::CMD_ITEM& item, std::string& err)
{
    std::string token;
    char prefix = 0;
    if (!parseToken(line, token, prefix))
        return false;
    // -?, /?, -help and /help on their own mean the help command.
    std::string const word = lowerCaseCopy(token);
    if (isKeywordPrefix(prefix) && (word == "?" || word == "help")) {
        token = "help";
        prefix = 0;
    }
    if (token.empty() && line.empty())
        return false;
    if (prefix != 0)
        return false;
    action = CmdAction::table().valFromPartialText(token, err);
    if (!err.empty())
        return false;

    std::string itemText;
    if (!line.empty() && !isKeywordPrefix(line[0])) {
        if (!parseToken(line, itemText, prefix))
            return false;
        if (itemText.empty())
            itemText = "cli";
    }
    item = CmdItem::table().valFromPartialText(itemText, err);
    return err.empty();
}

bool Parser::parseModifierToken(std::string& line, ModifierId::MODIFIER_ID& id, std::string& value, std::string& err)
{
    id = ModifierId::MODIFIER_NONE;
    value.clear();
    err.clear();
    std::string token;
    char prefix = 0;
    if (!parseToken(line, token, prefix)) {
        err = "Parsing error near " + line;
        return false;
    }
    if (token.empty() && line.empty())
        return false;
    if (!isKeywordPrefix(prefix)) {
        err = "Parsing error near " + line;
        return false;
    }
    // "--zek" or "-=1": a prefix that names nothing must not fail silently.
    if (token.empty()) {
        err = "Could not parse modifier near " + line;
        return false;
    }
    // Unknown and ambiguous keywords read alike: the table's own text is
    // replaced by the place where parsing stopped.
    id = ModifierId::table().valFromPartialText(token, err);
    if (!err.empty()) {
        err = "Could not parse modifier near " + line;
        return false;
    }
    if (line.empty() || !isValuePrefix(line[0]))
        return true;

    std::string afterSign = line.substr(1);
    dropLeadingWhitespace(afterSign);
    if (afterSign.empty()) {
        line.clear();
        return true;
    }
    if (looksLikeKeyword(afterSign)) {
        line.erase(0, 1);
        return true;
    }
    if (!parseToken(line, value, prefix)) {
        err = "Could not parse parameter near " + line;
        return false;
    }
    return true;
}

bool Parser::specialHandlingForAppendModifier(bool isSetAppend, ModifierId::MODIFIER_ID& id, std::string& value,
                                              std::string& line, std::string& err)
{
    if (isSetAppend) {
        // `set append` keeps the rest of the line as the set's text.
        root.updateAppendSet(value, line);
        line.clear();
        return parseModifierToken(line, id, value, err);
    }
    std::string const text = root.getAppendSet(value, err);
    if (!err.empty())
        return false;
    // A set that names itself last never makes the line longer, so the
    // bound alone would not stop it.
    if (isExpansionOpen(text, line)) {
        err += kAppendRecursionText;
        return false;
    }
    openExpansions.push_back({text, line.size()});
    line = text + line;
    if (line.size() > MAX_EXPANDED_LINE) {
        err += kAppendRecursionText;
        return false;
    }
    return parseModifierToken(line, id, value, err);
}

// The same text put in again while its earlier expansion is still open,
// directly or through other sets, would be read the same way for ever. Once
// the parser has read behind an expansion, that one is closed for good.
bool Parser::isExpansionOpen(std::string const& text, std::string const& line)
{
    std::erase_if(openExpansions, [&](OpenExpansion const& open) { return line.size() < open.restLength; });
    return std::any_of(openExpansions.begin(), openExpansions.end(),
                       [&](OpenExpansion const& open) { return open.text == text; });
}

namespace {

std::string syntaxBlock(TokenCmd const& cmd, char const* lead)
{
    return lead + cmd.ugCommandLowCase() + "\n" + (cmd.helpSyntax.empty() ? " " : cmd.helpSyntax) + "\n";
}

constexpr char const* kPlainSyntaxLead = "\n    Syntax: ";
constexpr char const* kArrowSyntaxLead = "\n-->Syntax: ";

} // namespace

int Parser::parseCommandLine(std::string& err)
{
    std::string line = commandLine;
    openExpansions.clear();
    root.initDefaultFlag();
    root.commonCommand.initDefaultFlag();
    root.resetModifierRequiredParamValues();
    CmdAction::CMD_ACTION action = CmdAction::ACTION_NO_ACTION;
    CmdItem::CMD_ITEM item = CmdItem::ITEM_NONE;

    if (!parseCmdToken(line, action, item, err))
        return err.empty() && line.empty() ? ZEKCLI_OK : ZEKCLI_PARSE_FAIL;
    // `help` alone means `help cli`, `version` alone `version cli`.
    if (action != CmdAction::ACTION_NO_ACTION && item == CmdItem::ITEM_NONE)
        item = CmdItem::ITEM_CLI;

    err.clear();
    currentCmd = root.findCmd(action, item, err);
    if (!currentCmd) {
        displayDetailedHelp(err);
        return ZEKCLI_PARSE_FAIL;
    }
    TokenCmd& cmd = *currentCmd;
    bool const isSetAppend = item == CmdItem::ITEM_APPEND && cmd.action == CmdAction::ACTION_SET;

    ModifierId::MODIFIER_ID id = ModifierId::MODIFIER_NONE;
    std::string value;
    bool more = parseModifierToken(line, id, value, err);
    // Only an -append in first place names the set on its token; a later one
    // just expands.
    if (more && id == ModifierId::MODIFIER_APPEND) {
        std::string scratch;
        if (TokenModifierString* const append = cmd.findModifier(id, scratch))
            append->setValue(value);
        more = specialHandlingForAppendModifier(isSetAppend, id, value, line, err);
    }
    while (more) {
        TokenModifierString* const token = cmd.findModifier(id, err);
        if (!token) {
            err += syntaxBlock(cmd, kPlainSyntaxLead);
            return ZEKCLI_PARSE_FAIL;
        }
        if (value.empty() && token->valueKind == TokenModifier::VALUE_REQUIRED) {
            err += "\n    " + token->name + " modifier requires a value" + syntaxBlock(cmd, kPlainSyntaxLead);
            return ZEKCLI_PARSE_FAIL;
        }
        token->isDefault = false;
        std::string stored = value;
        if (!token->children.empty()) {
            Token const* const choice = token->findChild(value, err);
            if (!choice) {
                err += syntaxBlock(cmd, kPlainSyntaxLead);
                return ZEKCLI_PARSE_FAIL;
            }
            stored = choice->value;
        }
        token->setValue(stored);

        more = parseModifierToken(line, id, value, err);
        if (more && id == ModifierId::MODIFIER_APPEND)
            more = specialHandlingForAppendModifier(isSetAppend, id, value, line, err);
    }
    if (!err.empty()) {
        err += syntaxBlock(cmd, kArrowSyntaxLead);
        return ZEKCLI_PARSE_FAIL;
    }
    if (!line.empty()) {
        cmd.outError(cmd.cmdHelpText());
        return ZEKCLI_PARSE_FAIL;
    }
    return ZEKCLI_OK;
}

Parser::LineOutcome Parser::runCommandLine(std::string& err, unsigned int iteration)
{
    // A line that names no command (blank, say) must not run the previous
    // line's command again.
    currentCmd = nullptr;
    int const rc = parseCommandLine(err);
    if (rc != ZEKCLI_OK)
        return {LineStep::ParseFailed, rc};
    if (isHelpModifierOnCommandLine())
        return {LineStep::HelpShown, displayDetailedHelp(err) ? ZEKCLI_OK : ZEKCLI_PARSE_FAIL};
    if (!isReadyToExec())
        return {LineStep::NotReady, ZEKCLI_OK};
    return {LineStep::Executed, execCommand(err, iteration)};
}

bool Parser::isReadyToExec() const
{
    return currentCmd && currentCmd->verifyRequiredModifiersAreSet();
}

bool Parser::isHelpModifierOnCommandLine() const
{
    std::string err;
    TokenModifierString const* const help = root.commonCommand.findModifier(ModifierId::MODIFIER_HELP, err);
    if (!help) {
        root.outError(err);
        return false;
    }
    TokenModifierString const* const question = root.commonCommand.findModifier(ModifierId::MODIFIER_QUESTION, err);
    return !help->isDefault || (question && !question->isDefault);
}

std::string Parser::addQuotesIfNeeded(std::string const& text)
{
    if (text.find_first_of(kBlankOrTab) == std::string::npos)
        return text;
    return quoted(text);
}

void Parser::initParsingTree()
{
    root.parser = this;
    addAllCommands(root);
    root.addCommonModifiersForAllCommands(parseTreeCommonModifierInit);
}
