// A small grammar tree for tests of the tree and the parser: a handful of
// commands declared by rows exactly as real commands declare themselves,
// so that these tests do not depend on the full command table.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "core/Parser.h"
#include "core/TokenCmd.h"
#include "core/TokenRoot.h"

namespace testtree {

using Row = TokenInitializer::TOKEN_INITIALIZER;

constexpr int kCmd = Token::TOKEN_TYPE_CMD;
constexpr int kKey = Token::TOKEN_TYPE_MODIFIER;
constexpr int kStr = Token::TOKEN_TYPE_STRING;
constexpr int kReq = TokenModifier::REQUIRED;
constexpr int kOpt = TokenModifier::OPTIONAL;
constexpr int kFlag = TokenModifier::VALUE_NONE;
constexpr int kVal = TokenModifier::VALUE_REQUIRED;
constexpr int kMay = TokenModifier::VALUE_OPTIONAL;

// A command that records that it ran and answers a chosen code.
class FakeCmd : public TokenCmd {
public:
    FakeCmd(Row const* rows, char const* syntax)
    {
        init(TokenInitializer(rows[0]));
        initModifiers(rows + 1);
        helpSyntax = syntax;
    }
    int execCommand(std::string& err) override
    {
        ++runs;
        err = answerText;
        return answer;
    }
    int runs = 0;
    int answer = 0;
    std::string answerText;
};

#define TESTTREE_LUN_SELECTORS                                                                                         \
    {2, kKey, "", "", ModifierId::MODIFIER_LUN_WWULN, kOpt, kVal},                                                     \
        {2, kKey, "", "", ModifierId::MODIFIER_LUN_ANY_WWULN, kOpt, kVal},                                             \
        {2, kKey, "", "", ModifierId::MODIFIER_LUN_SERIAL, kOpt, kVal},                                                \
        {2, kKey, "", "", ModifierId::MODIFIER_LUN_NUMBER, kOpt, kVal},                                                \
        {2, kKey, "", "", ModifierId::MODIFIER_VPGINDEX, kOpt, kVal},                                                  \
        {2, kKey, "", "", ModifierId::MODIFIER_FC_TARGET, kOpt, kVal},                                                 \
    {                                                                                                                  \
        2, kKey, "", "", ModifierId::MODIFIER_IS_TARGET, kOpt, kVal                                                    \
    }

inline Row const kShowLun[] = {
    {1, kCmd, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, 1},
    TESTTREE_LUN_SELECTORS,
    {2, kKey, "", "", ModifierId::MODIFIER_ZEK, kOpt, kVal},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kShowHealth[] = {
    {1, kCmd, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_HEALTH, 1},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kCreateLun[] = {
    {1, kCmd, "", "", CmdAction::ACTION_CREATE, CmdItem::ITEM_LUN, 3},
    {2, kKey, "", "", ModifierId::MODIFIER_SIZE, kReq, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_NAME, kOpt, kVal},
    {2, kKey, "", "", ModifierId::MODIFIER_MIRROR, kOpt, kVal},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kVersionAdapter[] = {
    {1, kCmd, "", "", CmdAction::ACTION_VERSION, CmdItem::ITEM_ADAPTER, 1},
    {2, kKey, "", "", ModifierId::MODIFIER_COMPARE, kReq, kVal},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kVersionCli[] = {
    {1, kCmd, "", "", CmdAction::ACTION_VERSION, CmdItem::ITEM_CLI, 1},
    {2, kKey, "", "", ModifierId::MODIFIER_NAME, kOpt, kFlag},
    {2, kKey, "", "", ModifierId::MODIFIER_ZEK, kOpt, kVal},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kHelpCli[] = {
    {1, kCmd, "", "", CmdAction::ACTION_HELP, CmdItem::ITEM_CLI, 1},
    {2, kKey, "", "~", ModifierId::MODIFIER_GENHELPDOC, kOpt, kVal},
    {2, kKey, "", "~", ModifierId::MODIFIER_CONSTRAINT, kOpt, kFlag},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kInteractiveCli[] = {
    {1, kCmd, "", "", CmdAction::ACTION_INTERACTIVE, CmdItem::ITEM_CLI, 1},
    {2, kKey, "", "", ModifierId::MODIFIER_ZEK, kOpt, kVal},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kSetAppend[] = {
    {1, kCmd, "", "", CmdAction::ACTION_SET, CmdItem::ITEM_APPEND, 1},
    {2, kKey, "", "", ModifierId::MODIFIER_APPEND, kReq, kVal},
    {0, 0, "", "", 0, 0, 0},
};
inline Row const kViewLog[] = {
    {1, kCmd, "", "", CmdAction::ACTION_VIEW, CmdItem::ITEM_LOG, 1},
    {2, kKey, "", "~", ModifierId::MODIFIER_FILEPATH, kOpt, kVal},
    {2, kKey, "", "~", ModifierId::MODIFIER_PREVIOUS, kOpt, kMay},
    {2, kKey, "", "~", ModifierId::MODIFIER_NEXT, kOpt, kMay},
    {0, 0, "", "", 0, 0, 0},
};

// A parser whose tree holds the commands above, in this order.
class Tree {
public:
    Tree()
    {
        parser.root.parser = &parser;
        showLun = add(kShowLun, "\t[-lun_number=<n>]");
        showHealth = add(kShowHealth, "");
        createLun = add(kCreateLun, "\t-size=<MB>\n\t[-name=<name>]");
        versionAdapter = add(kVersionAdapter, "\t-compare=<version>");
        versionCli = add(kVersionCli, "\t[-name]");
        helpCli = add(kHelpCli, "\t[-constraint]");
        interactiveCli = add(kInteractiveCli, "");
        setAppend = add(kSetAppend, "\t-append=<name> <text>");
        viewLog = add(kViewLog, "\t[-previous[=<n>]]");
        parser.root.addCommonModifiersForAllCommands(parseTreeCommonModifierInit);
    }

    // Parses `text` as a script line would arrive.
    int parse(std::string const& text)
    {
        parser.commandLine = text;
        err.clear();
        return parser.parseCommandLine(err);
    }

    // Parses an argument vector as the host would pass it.
    int parseArgs(std::initializer_list<char const*> args)
    {
        std::vector<std::string> storage(args.begin(), args.end());
        std::vector<char*> argv;
        for (std::string& s : storage)
            argv.push_back(s.data());
        parser.getCommandLine(static_cast<int>(argv.size()), argv.data());
        err.clear();
        return parser.parseCommandLine(err);
    }

    TokenModifierString* keyword(TokenCmd* cmd, ModifierId::MODIFIER_ID id)
    {
        std::string scratch;
        return cmd->findModifier(id, scratch);
    }

    TokenModifierString* common(ModifierId::MODIFIER_ID id)
    {
        std::string scratch;
        return parser.root.commonCommand.findModifier(id, scratch);
    }

    Parser parser;
    std::string err;
    FakeCmd* showLun = nullptr;
    FakeCmd* showHealth = nullptr;
    FakeCmd* createLun = nullptr;
    FakeCmd* versionAdapter = nullptr;
    FakeCmd* versionCli = nullptr;
    FakeCmd* helpCli = nullptr;
    FakeCmd* interactiveCli = nullptr;
    FakeCmd* setAppend = nullptr;
    FakeCmd* viewLog = nullptr;

private:
    FakeCmd* add(Row const* rows, char const* syntax)
    {
        FakeCmd* cmd = new FakeCmd(rows, syntax);
        parser.root.addChild(cmd);
        return cmd;
    }
};

} // namespace testtree
