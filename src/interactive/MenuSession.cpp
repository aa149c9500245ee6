#include "interactive/MenuSession.h"

#include <algorithm>
#include <cstdlib>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandPattern.h"
#include "core/Parser.h"
#include "core/TokenCmd.h"
#include "core/TokenRoot.h"
#include "interactive/MenuCodes.h"
#include "interactive/MenuConsole.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"

namespace {

constexpr char const* kSelectionPrompt = "Please Enter Selection: ";

// Main menu entries; the first four are the action groups, in this order.
enum MAIN_ENTRY : int {
    MAIN_INFORMATION = 0,
    MAIN_CONFIGURATION = 1,
    MAIN_UPDATES = 2,
    MAIN_DIAGNOSTICS = 3,
    MAIN_HELP = 4,
    MAIN_EXIT = 5,
};

enum AGENT_ENTRY : int {
    AGENT_LOCAL = 0,
    AGENT_ENTER_ADDRESS = 1,
    AGENT_EARLIER = 2,
};

constexpr int kOfflineAdapterState = 2;

std::vector<std::string> const& mainEntries()
{
    static std::vector<std::string> const entries = {
        "Adapter Information", "Adapter Configuration", "Adapter Updates", "Adapter Diagnostics", "Help",
        "Exit (or use \"q\")"};
    return entries;
}

size_t groupOf(CmdAction::CMD_ACTION action)
{
    switch (action) {
    case CmdAction::ACTION_LIST:
    case CmdAction::ACTION_REPORT:
    case CmdAction::ACTION_SHOW:
    case CmdAction::ACTION_VIEW:
        return MAIN_INFORMATION;
    case CmdAction::ACTION_UPDATE:
        return MAIN_UPDATES;
    case CmdAction::ACTION_RESTORE:
    case CmdAction::ACTION_SAVE:
        return MAIN_DIAGNOSTICS;
    default:
        return MAIN_CONFIGURATION;
    }
}

template <typename T>
int indexOf(std::vector<T> const& list, int32_t wanted)
{
    auto const found = std::find(list.begin(), list.end(), static_cast<T>(wanted));
    return found == list.end() ? 0 : static_cast<int>(found - list.begin());
}

std::string const kAdapterHelp = "\n\nKorvane adapters can be managed directly if they are installed in the same\n"
                                 "host that is running this command line utility, but they can also be managed\n"
                                 "indirectly via a shared Fibre Channel connection or by use of an agent running\n"
                                 "on another host computer.\n";

std::string agentHelp()
{
    return kAdapterHelp + "\nIf a remote agent is to be used, it must be specified first, so that the\n" +
        "choices of adapters that can be reached wil be based on adapters reachable from\n" +
        "the remote host rather than the host this CLI is running on.\n\n";
}

std::string adapterHelp(bool allAdapters)
{
    std::string const start = allAdapters
        ? "\nSelecting \"All Adapters\" will apply the command to all of the adapters in\nthe list, or y"
        : "Y";
    return kAdapterHelp + start + "ou can select a specific adapter from the list.\n\n";
}

// The remembered -zek value names this adapter when it is its hexadecimal
// identifier.
bool namesAdapter(std::string const& kept, unsigned long long id)
{
    if (kept.empty() || kept.size() > 16 || !TokenCmd::isAllHexDigits(kept))
        return false;
    return std::strtoull(kept.c_str(), nullptr, 16) == id;
}

} // namespace

MenuSession::MenuSession(TokenCmd& session, TokenRoot& root, std::string& err) : session(session), root(root), err(err)
{
    std::vector<CmdAction::CMD_ACTION> actions;
    root.getListOfAvailableActions(actions);
    for (CmdAction::CMD_ACTION const action : actions)
        groups[groupOf(action)].push_back(action);
}

MenuSession::Outcome MenuSession::next()
{
    return {Outcome::NEXT, 0};
}

MenuSession::Outcome MenuSession::startOver()
{
    return {Outcome::START_OVER, 0};
}

MenuSession::Outcome MenuSession::end(int code)
{
    return {Outcome::END, code};
}

int MenuSession::run()
{
    for (;;) {
        lineText.clear();
        err.clear();
        Outcome const outcome = afterInput(oneRound());
        if (outcome.kind == Outcome::END)
            return outcome.code;
    }
}

// Each step either hands on to the next or ends the round.
MenuSession::Outcome MenuSession::oneRound()
{
    size_t group = 0;
    CmdAction::CMD_ACTION action = CmdAction::ACTION_NO_ACTION;
    CmdItem::CMD_ITEM item = CmdItem::ITEM_NONE;
    if (Outcome const o = afterInput(mainMenu(group)); o.kind != Outcome::NEXT)
        return o;
    if (Outcome const o = afterInput(actionMenu(group, action)); o.kind != Outcome::NEXT)
        return o;
    if (Outcome const o = afterInput(itemMenu(action, item)); o.kind != Outcome::NEXT)
        return o;
    TokenCmd* const chosen = root.findCmd(action, item, err);
    if (!chosen)
        return end(ZEKCLI_PARSE_FAIL);
    if (action == CmdAction::ACTION_HELP || action == CmdAction::ACTION_QUESTION) {
        menu_console::writeLine("Please select a command action from the list, or use 'q' to quit");
        return startOver();
    }
    for (Outcome (MenuSession::*step)(TokenCmd&) : {&MenuSession::agentMenu, &MenuSession::agentAddressOf,
                                                    &MenuSession::adapterMenu, &MenuSession::keywordPrompts}) {
        if (Outcome const o = afterInput((this->*step)(*chosen)); o.kind != Outcome::NEXT)
            return o;
    }
    return runCommand(*chosen);
}

// Once the input has ended nothing more can be chosen: the session ends as
// if "q" had been typed, whatever the menu made of the end.
MenuSession::Outcome MenuSession::afterInput(Outcome outcome) const
{
    return menu_console::inputEnded() ? end(ZEKCLI_EXIT) : outcome;
}

int MenuSession::menu(std::vector<std::string> const& entries, int defaultIndex)
{
    return session.getMenuSelection(entries, defaultIndex, kSelectionPrompt, lineText);
}

// Quit, main menu or help, as the session's own menus treat them.
MenuSession::Outcome MenuSession::leftMenu(int selection)
{
    if (selection == MENU_QUIT)
        return end(ZEKCLI_EXIT);
    if (selection == MENU_HELP)
        return showSummaryHelp();
    return startOver();
}

// The agent and adapter menus answer help with a text of their own.
MenuSession::Outcome MenuSession::leftMenuShowing(int selection, std::string const& help)
{
    if (selection != MENU_HELP)
        return leftMenu(selection);
    session.outDisplay(help, err);
    return startOver();
}

MenuSession::Outcome MenuSession::showSummaryHelp()
{
    if (!root.displaySummaryHelp(err))
        session.outError(err);
    err.clear();
    return startOver();
}

MenuSession::Outcome MenuSession::mainMenu(size_t& group)
{
    int const selection = menu(mainEntries(), MAIN_INFORMATION);
    if (selection < 0 || selection == MAIN_HELP)
        return leftMenu(selection < 0 ? selection : MENU_HELP);
    if (selection == MAIN_EXIT)
        return end(ZEKCLI_OK);
    group = static_cast<size_t>(selection);
    return group < kGroupCount ? next() : startOver();
}

MenuSession::Outcome MenuSession::actionMenu(size_t group, CmdAction::CMD_ACTION& action)
{
    std::vector<CmdAction::CMD_ACTION> const& actions = groups[group];
    std::vector<std::string> entries;
    for (CmdAction::CMD_ACTION const one : actions) {
        std::string text = CmdAction::table().textFromVal(one);
        root.getItemListAsHelpTextForSpecificAction(one, text);
        entries.push_back(text);
    }
    int const selection = menu(entries, indexOf(actions, root.lastInteractiveAction));
    if (selection < 0)
        return leftMenu(selection);
    if (static_cast<size_t>(selection) >= actions.size())
        return startOver();
    action = actions[selection];
    lineText += CmdAction::table().textFromVal(action) + " ";
    root.lastInteractiveAction = action;
    return next();
}

// An action with a single item takes it without asking.
MenuSession::Outcome MenuSession::itemMenu(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM& item)
{
    std::vector<CmdItem::CMD_ITEM> items;
    root.getListOfAvailableItemsForSpecificAction(action, items);
    if (items.empty())
        return startOver();
    int selection = 0;
    if (items.size() > 1) {
        std::vector<std::string> entries;
        for (CmdItem::CMD_ITEM const one : items)
            entries.push_back(CmdItem::table().textFromVal(one));
        selection = menu(entries, indexOf(items, root.lastInteractiveItem));
        if (selection < 0)
            return leftMenu(selection);
        if (static_cast<size_t>(selection) >= items.size())
            return startOver();
    }
    item = items[selection];
    lineText += CmdItem::table().textFromVal(item) + " ";
    root.lastInteractiveItem = item;
    return next();
}

TokenModifierString* MenuSession::keyword(TokenCmd& chosen, int id)
{
    return chosen.findModifier(static_cast<ModifierId::MODIFIER_ID>(id), err);
}

MenuSession::Outcome MenuSession::agentMenu(TokenCmd& chosen)
{
    TokenModifierString* const agent = keyword(chosen, ModifierId::MODIFIER_AGENT);
    if (!agent)
        return end(ZEKCLI_PARSE_FAIL);
    std::string const earlier = agent->value;
    std::vector<std::string> entries = {"Work with locally connected adapters",
                                        "Enter a host IP address for a Remote Agent"};
    if (!earlier.empty())
        entries.push_back("-agent=" + earlier);
    int const selection = menu(entries, earlier.empty() ? AGENT_LOCAL : AGENT_EARLIER);
    if (selection < 0)
        return leftMenuShowing(selection, agentHelp());
    if (selection == AGENT_LOCAL) {
        agent->setValue("");
        agent->initDefaultFlag();
    } else if (selection == AGENT_ENTER_ADDRESS) {
        if (int const rc = chosen.promptForModifier(agent, false, lineText, err))
            return end(rc);
    } else if (selection == AGENT_EARLIER) {
        agent->setValue(earlier);
        lineText += " -agent=" + earlier;
    } else {
        return startOver();
    }
    return next();
}

// A remembered address that no longer reads is told, and the user starts
// again from the main menu.
MenuSession::Outcome MenuSession::agentAddressOf(TokenCmd& chosen)
{
    agentAddress.init();
    TokenModifierString* const agent = keyword(chosen, ModifierId::MODIFIER_AGENT);
    agentChosen = agent && !agent->isDefault && !agent->value.empty();
    if (!agentChosen || g_pHbaMgmtApi->textToIpAddress(agent->value, agentAddress, err))
        return next();
    session.outError(err);
    return startOver();
}

// Adapters come from a fresh scan of this host or of the agent's host. Only
// here does a local scan that finds nothing count as an empty list, so that
// the user is told there is nothing to manage.
MenuSession::Outcome MenuSession::adapterMenu(TokenCmd& chosen)
{
    TokenModifierString* const zek = keyword(chosen, ModifierId::MODIFIER_ZEK);
    if (!zek)
        return end(ZEKCLI_PARSE_FAIL);
    std::string const kept = zek->value;
    bool noneFound = false;
    if (int const rc = rescanAdapters(agentAddress, noneFound))
        return end(rc);
    if (noneFound && agentChosen)
        return end(MHBA_E_NO_ADAPTER_FOUND);
    std::vector<HIsaAdapter*> const& adapters = g_pHbaMgmtApi->getAdapters()->items;
    if (adapters.empty()) {
        err = "There are no locally connected Korvane adapters and no remote agent has been selected - the CLI will "
              "now exit.";
        return end(ZEKCLI_CMD_FAIL);
    }
    std::vector<std::string> entries;
    std::vector<std::string> ids;
    int defaultIndex = -1;
    for (HIsaAdapter* adapter : adapters) {
        KIsaAdapterInfo const* const info = adapter->getCachedAdapterInfo();
        if (info && info->adapterState == kOfflineAdapterState)
            continue;
        unsigned long long const id = adapter->getAdapterPath()->isaHbaId();
        if (defaultIndex < 0 && namesAdapter(kept, id))
            defaultIndex = static_cast<int>(entries.size());
        ids.push_back(KIsaAdapterPath::ui64numberToHexText(id));
        entries.push_back("-zek=" + ids.back());
    }
    bool const allAdapters = zek->requiredKind == TokenModifier::OPTIONAL;
    if (allAdapters) {
        entries.push_back("All Adapters");
        if (defaultIndex < 0)
            defaultIndex = static_cast<int>(entries.size()) - 1;
    }
    int const selection = menu(entries, std::max(defaultIndex, 0));
    if (selection < 0)
        return leftMenuShowing(selection, adapterHelp(allAdapters));
    if (static_cast<size_t>(selection) < ids.size()) {
        lineText += entries[selection];
        zek->setValue(ids[selection]);
    } else if (allAdapters && static_cast<size_t>(selection) == ids.size()) {
        zek->setValue("");
        zek->initDefaultFlag();
    } else {
        return startOver();
    }
    return next();
}

MenuSession::Outcome MenuSession::showDetailedHelp(TokenCmd& chosen)
{
    bool const shown = chosen.displayDetailedHelp(err);
    // The result of the help goes out as a text of one character, as it
    // always has.
    session.outDisplay(std::string(1, static_cast<char>(shown)), err);
    return startOver();
}

MenuSession::Outcome MenuSession::keywordPrompts(TokenCmd& chosen)
{
    if (int const rc = chosen.interactivePromptForModifiersThatSpanMultipleKeywords(lineText, err))
        return end(rc);
    int const listed = chosen.interactivePromptForModifiersThatSelectFromList(lineText, err);
    if (listed == MENU_CONTROL_MAIN_MENU)
        return startOver();
    if (listed == MENU_CONTROL_SHOW_HELP)
        return showDetailedHelp(chosen);
    if (listed != 0)
        return end(listed);
    if (int const rc = chosen.interactivePromptForModifiersThatHaveNoParamData(lineText, err))
        return end(rc);
    if (int const rc = chosen.interactivePromptForRequiredModifiers(lineText, err))
        return end(rc);
    return next();
}

// A command that fails is told and the session goes on.
MenuSession::Outcome MenuSession::runCommand(TokenCmd& chosen)
{
    int const rc = chosen.interactivePromptForOptionalModifiersAndExecute(lineText, err);
    lineText.clear();
    if (Outcome const o = afterInput(next()); o.kind == Outcome::END)
        return o;
    if (rc != 0)
        session.outError("*** " + Parser::zekcliReturnToText(rc) + "-- " + err);
    return startOver();
}
