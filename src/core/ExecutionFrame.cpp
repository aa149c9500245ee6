// The frame around every command: the common keywords, the checks that hold
// for all commands, the report of a failure, and the output channels through
// which all text and binary results leave, so that -quiet, -show_only_error,
// -textfile and -result behave alike for every command.
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

#include "api/HIsaAdapter.h"
#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "core/AdapterBanner.h"
#include "core/MyMsgHandler.h"
#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "core/TreeRoot.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "records/KLibraryVersionInfo.h"
#include "records/PIpAddress.h"

namespace {

// Wipes a progress line ("\r", thirteen blanks, "\r") before other text.
constexpr char const* kWipeProgressLine = "\r             \r";

std::string defaultFileName(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item, char const* extension)
{
    return CmdAction::table().textFromVal(action) + "_" + CmdItem::table().textFromVal(item) + extension;
}

std::string defaultTextFileName(TokenCmd const& cmd)
{
    return defaultFileName(cmd.action, cmd.item, ".log");
}

void appendInt32(std::vector<unsigned char>& bytes, uint32_t value)
{
    unsigned char raw[sizeof value];
    std::memcpy(raw, &value, sizeof value);
    bytes.insert(bytes.end(), raw, raw + sizeof raw);
}

// The values the frame takes from the common keywords of one command line.
struct CommonKeywords {
    TokenModifierString* echo = nullptr;
    TokenModifierString* quiet = nullptr;
    TokenModifierString* showOnlyError = nullptr;
    TokenModifierString* textFile = nullptr;
    TokenModifierString* result = nullptr;
    TokenModifierString* demonstrationFile = nullptr;
    TokenModifierString* zek = nullptr;
    TokenModifierString* agent = nullptr;
    TokenModifierString* help = nullptr;
    TokenModifierString* question = nullptr;

    static bool given(TokenModifierString const* token) { return !token->isDefault; }

    // Looks every keyword up on the command, so that a command's own
    // declaration (its own -zek) is the one read.
    bool lookUp(TokenCmd const& cmd, std::string& err)
    {
        struct Wanted {
            ModifierId::MODIFIER_ID id;
            TokenModifierString** slot;
        } const wanted[] = {
            {ModifierId::MODIFIER_ECHO, &echo},
            {ModifierId::MODIFIER_QUIET, &quiet},
            {ModifierId::MODIFIER_SHOW_ONLY_ERROR, &showOnlyError},
            {ModifierId::MODIFIER_TEXTFILE, &textFile},
            {ModifierId::MODIFIER_RESULT, &result},
            {ModifierId::MODIFIER_DEMONSTRATION_FILE, &demonstrationFile},
            {ModifierId::MODIFIER_ZEK, &zek},
            {ModifierId::MODIFIER_AGENT, &agent},
            {ModifierId::MODIFIER_HELP, &help},
            {ModifierId::MODIFIER_QUESTION, &question},
        };
        for (Wanted const& w : wanted) {
            *w.slot = cmd.findModifier(w.id, err);
            if (!*w.slot)
                return false;
        }
        return true;
    }
};

// Device work needs root, except where an agent does it or only versions are
// read; help and demonstration runs touch no device at all.
int checkDeviceAccess(TokenCmd& cmd, CommonKeywords const& keys, std::string& err)
{
    bool const helpOnly = cmd.action == CmdAction::ACTION_HELP || cmd.action == CmdAction::ACTION_QUESTION;
    if (helpOnly || CommonKeywords::given(keys.demonstrationFile))
        return ZEKCLI_OK;
    PIpAddress address;
    int const rc = cmd.testAgentConnectionIfAny(address, err);
    if (rc != 0)
        return rc;
    if (cmd.action != CmdAction::ACTION_VERSION && !CommonKeywords::given(keys.agent) && getuid() != 0) {
        err = "Controlling devices on the local host requires running this utility as a root.";
        return ZEKCLI_PARSE_FAIL;
    }
    return ZEKCLI_OK;
}

std::string failureText(int rc, std::string const& err)
{
    std::string text = rc == ZEKCLI_CONFIRM_FAIL
        ? std::string("(No action taken) ")
        : std::string(kWipeProgressLine) + "*** " + Parser::zekcliReturnToText(rc);
    if (!err.empty())
        text += " -- " + err;
    return text;
}

} // namespace

TokenRoot* rootOfTree(Token const* token)
{
    while (token && token->tokenType != Token::TOKEN_TYPE_ROOT)
        token = token->parent;
    return const_cast<TokenRoot*>(static_cast<TokenRoot const*>(token));
}

// ---- Parser ---------------------------------------------------------------

int Parser::execCommand(std::string& err, unsigned int iteration)
{
    if (!currentCmd)
        return ZEKCLI_PARSE_FAIL;
    TokenCmd& cmd = *currentCmd;
    if (root.isGroupDisabled(cmd.commandGroup)) {
        err = "*** This feature is not enabled";
        return ZEKCLI_PARSE_FAIL;
    }

    CommonKeywords keys;
    if (!keys.lookUp(cmd, err))
        return ZEKCLI_PARSE_FAIL;
    bool const quietGiven = CommonKeywords::given(keys.quiet);
    bool const showOnlyErrorGiven = CommonKeywords::given(keys.showOnlyError);
    root.quiet = quietGiven || showOnlyErrorGiven;
    root.showOnlyError = showOnlyErrorGiven;
    root.textFileEnabled = CommonKeywords::given(keys.textFile);
    root.textFileName = root.textFileEnabled ? keys.textFile->value : std::string();
    std::string const adapterText = CommonKeywords::given(keys.zek) ? keys.zek->value : std::string();

    if (CommonKeywords::given(keys.help) || CommonKeywords::given(keys.question)) {
        cmd.displayDetailedHelp(err);
        return ZEKCLI_OK;
    }

    if (CommonKeywords::given(keys.demonstrationFile)) {
        if (CommonKeywords::given(keys.agent)) {
            err = "Cannot combine use of -agent=... and -demonstration_file=... keywords";
            return ZEKCLI_PARSE_FAIL;
        }
        int const rc = g_pHbaMgmtApi->loadDemonstrationFile(keys.demonstrationFile->value, err);
        if (rc != 0)
            return rc;
    }
    int const accessRc = checkDeviceAccess(cmd, keys, err);
    if (accessRc != 0)
        return accessRc;

    std::string const commandName =
        CmdAction::table().textFromVal(cmd.action) + " " + CmdItem::table().textFromVal(cmd.item);
    root.resultFileEnabled = CommonKeywords::given(keys.result);
    root.resultFileName = keys.result->value;

    if (!quietGiven) {
        std::string const prefix =
            iteration == 0 ? std::string() : std::string(kWipeProgressLine) + std::to_string(iteration) + ": ";
        if (!CommonKeywords::given(keys.echo)) {
            printf("%s", prefix.c_str());
        } else {
            std::string scratch;
            root.outError(prefix + commandLine);
            if (!root.outTextFile(prefix + commandLine, defaultTextFileName(cmd), scratch)) {
                root.stats.add(adapterText, commandName, ZEKCLI_OUTPUT_FAIL, iteration);
                return ZEKCLI_OUTPUT_FAIL;
            }
        }
    }

    int const rc = cmd.execCommand(err);
    if (rc != 0) {
        std::string const text = failureText(rc, err);
        if (showOnlyErrorGiven)
            cmd.outError(text);
        std::string scratch;
        if (!cmd.outDisplay(text, scratch) && !quietGiven)
            puts(text.c_str());
    }
    if (rc != ZEKCLI_PARSE_FAIL)
        root.stats.add(adapterText, commandName, rc, iteration);
    return rc;
}

std::string Parser::zekcliReturnToText(int code)
{
    switch (code) {
    case ZEKCLI_OK:
        return "ZEKCLI_OK";
    case ZEKCLI_INIT_FAIL:
        return "ZEKCLI_INIT_FAIL";
    case ZEKCLI_PARSE_FAIL:
        return "ZEKCLI_PARSE_FAIL";
    case ZEKCLI_CONFIRM_FAIL:
        return "ZEKCLI_CONFIRM_FAIL";
    case ZEKCLI_CMD_FAIL:
        return "ZEKCLI_CMD_FAIL";
    case ZEKCLI_EXIT:
        return "ZEKCLI_EXIT";
    case ZEKCLI_TIMEOUT:
        return "ZEKCLI_TIMEOUT";
    default:
        return g_pHbaMgmtApi->returnCodeToText(code);
    }
}

bool Parser::displayIpAddress(HIsaAdapter* adapter, std::string& err) const
{
    if (currentCmd)
        return currentCmd->displayIpAddress(adapter, err);
    return root.displayIpAddress(adapter, "parser", err);
}

void Parser::myProgressMsg(int percent) const
{
    if (msgHandler)
        msgHandler->progressMsg(percent);
}

// ---- TokenCmd -------------------------------------------------------------

bool TokenCmd::outDisplay(std::string const& text, std::string& err) const
{
    TokenRoot const* const root = rootOfTree(this);
    if (!root) {
        err = "The command \"" + ugCommandLowCase() + "\" is not part of the command tree";
        return false;
    }
    return root->outDisplay(text, defaultTextFileName(*this), err);
}

void TokenCmd::outError(std::string const& text) const
{
    TokenRoot const* const root = rootOfTree(this);
    if (!root)
        return;
    std::string scratch;
    root->outError(text);
    root->outTextFile(text, defaultTextFileName(*this), scratch);
}

bool TokenCmd::outResult(e_MHBA_RETURN status, void const* data, unsigned long size, std::string& err) const
{
    TokenRoot const* const root = rootOfTree(this);
    if (!root) {
        err = "The command \"" + ugCommandLowCase() + "\" is not part of the command tree";
        return false;
    }
    return root->outResult(action, item, status, data, size, defaultFileName(action, item, ".dat"), err);
}

bool TokenCmd::outScript(FILE* stream, std::string const& text, std::string& err) const
{
    if (text.empty())
        return true;
    if (!stream)
        return outDisplay(text, err);
    if (fwrite(text.data(), 1, text.size(), stream) != text.size()) {
        err = "The script could not be written";
        return false;
    }
    return true;
}

bool TokenCmd::displayIpAddress(HIsaAdapter* adapter, std::string& err) const
{
    TokenRoot const* const root = rootOfTree(this);
    if (!root) {
        err = "The command \"" + ugCommandLowCase() + "\" is not part of the command tree";
        return false;
    }
    return root->displayIpAddress(adapter, defaultTextFileName(*this), err);
}

// ---- TokenRoot ------------------------------------------------------------

bool TokenRoot::outDisplay(std::string const& text, std::string const& fileName, std::string& err) const
{
    if (text.empty())
        return true;
    if (!quiet)
        puts(text.c_str());
    return outTextFile(text, fileName, err);
}

void TokenRoot::outError(std::string const& text) const
{
    if (text.empty())
        return;
    if (quiet && !showOnlyError)
        return;
    puts(text.c_str());
}

namespace {

// A full disk shows only when the buffered bytes go out, so both the stream's
// error flag and the close are asked.
bool closeWrittenFile(FILE* file, std::string const& path, std::string& err)
{
    bool const written = !ferror(file);
    int const writeError = errno;
    bool const closed = fclose(file) == 0;
    if (written && closed)
        return true;
    err = "Unable to write file \"" + path + "\", (" + std::strerror(written ? errno : writeError) + ")";
    return false;
}

} // namespace

bool TokenRoot::outTextFile(std::string const& text, std::string const& fileName, std::string& err) const
{
    if (!textFileEnabled)
        return true;
    std::string const& path = textFileName.empty() ? fileName : textFileName;
    FILE* file = nullptr;
    if (!Token::safe_fopen(&file, path, "a", err))
        return false;
    fseek(file, 0, SEEK_END);
    fwrite(text.data(), 1, text.size(), file);
    fputc('\n', file);
    return closeWrittenFile(file, path, err);
}

// One record per call, appended: header size 32 (the announced size leaves
// out the four bytes behind it, which we write as zeros so that files are
// reproducible), the library version, action, item, status, the optional
// payload section, and a terminating 0.
bool TokenRoot::outResult(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item, e_MHBA_RETURN status, void const* data,
                          unsigned long size, std::string const& fileName, std::string& err) const
{
    if (!resultFileEnabled)
        return true;
    std::string const& path = resultFileName.empty() ? fileName : resultFileName;
    FILE* file = nullptr;
    if (!Token::safe_fopen(&file, path, "a", err))
        return false;
    fseek(file, 0, SEEK_END);

    KLibraryVersionInfo version;
    g_pHbaMgmtApi->getLibraryVersionInfo(version);

    std::vector<unsigned char> record;
    appendInt32(record, 32);
    appendInt32(record, 0);
    appendInt32(record, version.versionMajor);
    appendInt32(record, version.versionMinor);
    appendInt32(record, version.versionPatch);
    appendInt32(record, version.versionBuild);
    appendInt32(record, static_cast<uint32_t>(action));
    appendInt32(record, static_cast<uint32_t>(item));
    appendInt32(record, static_cast<uint32_t>(status));
    if (size != 0) {
        appendInt32(record, static_cast<uint32_t>(size + 4));
        unsigned char const* const bytes = static_cast<unsigned char const*>(data);
        record.insert(record.end(), bytes, bytes + size);
    }
    appendInt32(record, 0);
    fwrite(record.data(), 1, record.size(), file);
    return closeWrittenFile(file, path, err);
}

std::string adapterBannerText(KIsaAdapterPath const* path, bool agentGiven, std::string const& agentValue)
{
    if (!path)
        return "??? [ " + (agentGiven ? agentValue : std::string("local host")) + " ]\n";
    std::string const host = agentGiven ? "host at " + path->ipAddrRemoteAgentHost().displayText() : "local host";
    if (path->isLocalDevice())
        return "[ Device " + std::to_string(path->deviceInstanceForAccess()) + " on " + host + " ]\n";
    return "[ HBA ID " + path->hbaIDText() + " discovered in SAN connected to " + host + " ]\n";
}

bool TokenRoot::displayIpAddress(HIsaAdapter* adapter, std::string const& fileName, std::string& err) const
{
    TokenModifierString const* const agent = commonCommand.findModifier(ModifierId::MODIFIER_AGENT, err);
    if (!agent)
        return false;
    KIsaAdapterPath const* const path = adapter ? adapter->getAdapterPath() : nullptr;
    return outDisplay(adapterBannerText(path, !agent->isDefault, agent->value), fileName, err);
}

void TokenRoot::myProgressMsg(int percent) const
{
    if (!quiet && parser)
        parser->myProgressMsg(percent);
}
