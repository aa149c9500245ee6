// Test bench for the command-line core: a parser whose tree holds the CLI's
// own commands plus a stand-in device command, a fake management library,
// and a private working and home directory.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <unistd.h>

#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "core/cli/CmdAppendSet.h"
#include "core/cli/CmdAppendShow.h"
#include "core/cli/CmdDisplayClear.h"
#include "core/cli/CmdTimeWait.h"
#include "core/cli/CmdZekcliHelp.h"
#include "core/cli/CmdZekcliQhelp.h"
#include "core/cli/CmdZekcliRetval.h"
#include "core/cli/CmdZekcliVersion.h"
#include "support/FakeHbaMgmtApi.h"
#include "support/TempDirectory.h"

// A device command whose outcome a test decides: "show lun" with its own
// -zek, as the real one declares it, writing a status record on success.
class ScriptedShowLun : public TokenCmd {
public:
    ScriptedShowLun()
    {
        static TokenInitializer::TOKEN_INITIALIZER const rows[] = {
            {1, TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, GROUP_ORDINARY},
            {2, TOKEN_TYPE_MODIFIER, "", "", ModifierId::MODIFIER_LUN_NUMBER, TokenModifier::OPTIONAL,
             TokenModifier::VALUE_REQUIRED},
            {2, TOKEN_TYPE_MODIFIER, "", "", ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL,
             TokenModifier::VALUE_REQUIRED},
            {0, 0, "", "", 0, 0, 0},
        };
        init(TokenInitializer(rows[0]));
        initModifiers(&rows[1]);
        helpSyntax = "\t[-lun_number=<number>]";
        helpNotes = "\tNeeds a cached LUN.\n";
    }
    int execCommand(std::string& err) override
    {
        ++runs;
        if (!output.empty() && !outDisplay(output, err))
            return 55;
        if (rc == 0 && !outResult(MHBA_S_OK, nullptr, 0, err))
            return 55;
        err = failure;
        return rc;
    }
    int rc = 0;
    int runs = 0;
    std::string output = "LUN list";
    std::string failure;
};

// A command of the hidden LUN configuration group.
class ScriptedCreateLun : public TokenCmd {
public:
    ScriptedCreateLun()
    {
        static TokenInitializer::TOKEN_INITIALIZER const rows[] = {
            {1, TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_CREATE, CmdItem::ITEM_LUN, GROUP_LUN_CONFIG},
            {2, TOKEN_TYPE_MODIFIER, "", "", ModifierId::MODIFIER_SIZE, TokenModifier::REQUIRED,
             TokenModifier::VALUE_REQUIRED},
            {0, 0, "", "", 0, 0, 0},
        };
        init(TokenInitializer(rows[0]));
        initModifiers(&rows[1]);
        helpSyntax = "\t-size=<GB>";
    }
    int execCommand(std::string&) override { return 0; }
};

inline std::string readWholeFile(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Runs in a private directory that is both the working and the home
// directory, so default file names and the preferences land there.
class CoreTreeTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        savedCwd = std::filesystem::current_path();
        std::filesystem::current_path(dir.path);
        build(parser);
    }
    void TearDown() override { std::filesystem::current_path(savedCwd); }

    void build(Parser& p)
    {
        p.root.parser = &p;
        TokenRoot& root = p.root;
        showLun = new ScriptedShowLun;
        createLun = new ScriptedCreateLun;
        Token* const commands[] = {new CmdZekcliQhelp,   new CmdDisplayClear, createLun, new CmdZekcliHelp,
                                   new CmdZekcliRetval,  new CmdAppendSet,    showLun,   new CmdAppendShow,
                                   new CmdZekcliVersion, new CmdTimeWait};
        for (Token* cmd : commands)
            root.addChild(cmd);
        root.addCommonModifiersForAllCommands(parseTreeCommonModifierInit);
        root.initFromPrefFile(nullptr);
    }

    // Parses and runs one line as the entry point and scripts do, with the
    // console output captured.
    int run(std::string const& line)
    {
        err.clear();
        parser.commandLine = line;
        ::testing::internal::CaptureStdout();
        int const rc = parser.runCommandLine(err, iteration).rc;
        fflush(stdout);
        out = ::testing::internal::GetCapturedStdout();
        return rc;
    }

    TempDirectory dir{"zekcore"};
    ScopedEnvironmentVariable home{"HOME", dir.path};
    ScopedFakeApi fake;
    Parser parser;
    ScriptedShowLun* showLun = nullptr;
    ScriptedCreateLun* createLun = nullptr;
    std::string err;
    std::string out;
    unsigned int iteration = 0;

private:
    std::filesystem::path savedCwd;
};
