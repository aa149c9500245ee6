// The driver of one command line: folds the argument vector, parses it into
// the token tree and runs the command it found.
#pragma once

#include <string>
#include <vector>

#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ModifierId.h"
#include "core/TokenCmd.h"
#include "core/TokenRoot.h"

class HIsaAdapter;
class MyMsgHandler;

class Parser {
public:
    // A line longer than this after an append set expanded is refused.
    static constexpr size_t MAX_EXPANDED_LINE = 8192;

    Parser();
    ~Parser();
    Parser(Parser const&) = delete;
    Parser& operator=(Parser const&) = delete;

    // Command text and parsing (core/Parser.cpp).
    void getCommandLine(int argc, char** argv);
    bool parseToken(std::string& line, std::string& token, char& prefix);
    bool parseCmdToken(std::string& line, CmdAction::CMD_ACTION& action, CmdItem::CMD_ITEM& item, std::string& err);
    bool parseModifierToken(std::string& line, ModifierId::MODIFIER_ID& id, std::string& value, std::string& err);
    bool specialHandlingForAppendModifier(bool isSetAppend, ModifierId::MODIFIER_ID& id, std::string& value,
                                          std::string& line, std::string& err);
    int parseCommandLine(std::string& err);
    bool isReadyToExec() const;
    bool isHelpModifierOnCommandLine() const;
    static std::string addQuotesIfNeeded(std::string const& text);
    void initParsingTree();

    // Running one line, for the entry point and for scripts alike
    // (core/Parser.cpp): parse `commandLine`, then show help, or run the
    // command if its required keywords are set. Each caller frames the
    // outcome its own way.
    enum class LineStep { ParseFailed, HelpShown, NotReady, Executed };
    struct LineOutcome {
        LineStep step;
        int rc; // the parse's, the help's or the command's code
    };
    LineOutcome runCommandLine(std::string& err, unsigned int iteration);

    // Execution frame: common keywords, checks, the command, its failure
    // text (core/ExecutionFrame.cpp).
    int execCommand(std::string& err, unsigned int iteration);
    static std::string zekcliReturnToText(int code);
    bool displayIpAddress(HIsaAdapter* adapter, std::string& err) const;
    void myProgressMsg(int percent) const;

    // Preferences (core/Preferences.cpp) and history (core/History.cpp).
    void init();
    void save();
    static std::string getHomeDirectory();
    bool isCommandHistoryFileExists();
    void updateCommandHistory(int rc, std::string const& out);

    // Help (core/Help.cpp).
    bool displayDetailedHelp(std::string& err) const;

    MyMsgHandler* msgHandler = nullptr;
    std::string commandLine;
    TokenCmd* currentCmd = nullptr;
    TokenRoot root;
    std::string historyPath;

private:
    // An append set's text put into the line, open until the parser reads
    // something behind it: `restLength` is how much of the line followed it.
    struct OpenExpansion {
        std::string text;
        size_t restLength;
    };
    bool isExpansionOpen(std::string const& text, std::string const& line);

    std::vector<OpenExpansion> openExpansions;
};
