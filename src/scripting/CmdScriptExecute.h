// "execute script": executes a list of Host CLI commands read in from a file.
#pragma once

#include <ctime>
#include <string>
#include <sys/types.h>
#include <vector>

#include "core/TokenCmd.h"

// The switches of one script run, read once before the first line: each line
// re-parses the tree and would otherwise wipe them.
struct ScriptRunSwitches {
    bool continueOnError = false;
    bool quiet = false;
    bool showOnlyError = false;
    bool echo = false;
    bool textFile = false;
    std::string textFileName;

    // Adds the output switches to one line of the script, in a fixed order.
    void appendTo(std::string& line) const;
};

class CmdScriptExecute : public TokenCmd {
public:
    CmdScriptExecute();

    int execCommand(std::string& err) override;

    // True for a line that is not run: empty, or a comment.
    static bool isSkippedLine(std::string const& line);

    // The text file of a run whose -textfile has no value: the script's path
    // up to its last dot, then the local date and time of `local`.
    static std::string textFileNameFor(std::string const& scriptPath, std::tm const& local);

    // Scripts may run scripts, this many levels deep at most.
    static constexpr size_t MAX_NESTING = 32;

private:
    // A script file, whatever name it was reached by.
    struct FileIdentity {
        dev_t device;
        ino_t inode;
        bool operator==(FileIdentity const&) const = default;
    };

    // 0, or 52 with the reason when the script must not be opened: it is
    // already running in the chain of scripts, or the chain is full.
    int refuseNesting(std::string const& scriptPath, std::string& err) const;
    bool isRunning(FileIdentity const& identity) const;
    static FileIdentity identityOf(FILE* script);
    int runScript(FILE* script, std::string const& scriptPath, std::string& err);
    bool readSwitches(std::string const& scriptPath, ScriptRunSwitches& switches, std::string& err) const;
    int runLines(FILE* script, ScriptRunSwitches const& switches, std::string& err);
    int reportRun(std::string const& scriptPath, int failing, std::string& err) const;

    // The scripts now running, outermost first: a script line that runs a
    // script runs this same command again.
    std::vector<FileIdentity> runningScripts;
};
