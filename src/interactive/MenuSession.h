// One menu session of "interactive cli": main menu, action, item, agent and
// adapter menus, then the keyword prompts of the chosen command, which then
// runs; round after round until the user leaves.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "records/PIpAddress.h"

class TokenCmd;
class TokenModifierString;
class TokenRoot;

class MenuSession {
public:
    // `session` is the "interactive cli" command that runs the session;
    // failure words end up in `err`.
    MenuSession(TokenCmd& session, TokenRoot& root, std::string& err);

    // 0 after Exit, 58 when the user quits or the input ends, or the code
    // that ended the session.
    int run();

private:
    // How one step of a round ended.
    struct Outcome {
        enum Kind { NEXT, START_OVER, END };
        Kind kind;
        int code;
    };
    static Outcome next();
    static Outcome startOver();
    static Outcome end(int code);

    Outcome oneRound();
    Outcome mainMenu(size_t& group);
    Outcome actionMenu(size_t group, CmdAction::CMD_ACTION& action);
    Outcome itemMenu(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM& item);
    Outcome agentMenu(TokenCmd& chosen);
    Outcome agentAddressOf(TokenCmd& chosen);
    Outcome adapterMenu(TokenCmd& chosen);
    Outcome keywordPrompts(TokenCmd& chosen);
    Outcome runCommand(TokenCmd& chosen);

    Outcome leftMenu(int selection);
    Outcome leftMenuShowing(int selection, std::string const& help);
    Outcome afterInput(Outcome outcome) const;
    Outcome showSummaryHelp();
    Outcome showDetailedHelp(TokenCmd& chosen);
    int menu(std::vector<std::string> const& entries, int defaultIndex);
    TokenModifierString* keyword(TokenCmd& chosen, int id);

    static constexpr size_t kGroupCount = 4;
    TokenCmd& session;
    TokenRoot& root;
    std::string& err;
    std::array<std::vector<CmdAction::CMD_ACTION>, kGroupCount> groups;
    std::string lineText;
    PIpAddress agentAddress;
    bool agentChosen = false;
};
