// The root of the tree: the common keywords, command lookup, the lists of
// visible actions and items, and running a further line in the same tree.
#include "core/TokenRoot.h"

#include <algorithm>

#include "core/Parser.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr int kKeyword = Token::TOKEN_TYPE_MODIFIER;
constexpr int kRequired = TokenModifier::REQUIRED;
constexpr int kOptional = TokenModifier::OPTIONAL;
constexpr int kInternal = TokenModifier::REQUIRED_INTERNAL;
constexpr int kFlag = TokenModifier::VALUE_NONE;
constexpr int kNeedsValue = TokenModifier::VALUE_REQUIRED;
constexpr int kMayOmitValue = TokenModifier::VALUE_OPTIONAL;

template <typename T>
void appendOnce(std::vector<T>& list, T value)
{
    if (std::find(list.begin(), list.end(), value) == list.end())
        list.push_back(value);
}

} // namespace

TokenInitializer::TOKEN_INITIALIZER const parseTreeCommonModifierInit[] = {
    {2, kKeyword, "", "", ModifierId::MODIFIER_ZEK, kRequired, kNeedsValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_AGENT, kOptional, kNeedsValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_HELP, kOptional, kMayOmitValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_QUESTION, kInternal, kFlag},
    {2, kKeyword, "", "", ModifierId::MODIFIER_ECHO, kOptional, kMayOmitValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_QUIET, kOptional, kMayOmitValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_SHOW_ONLY_ERROR, kOptional, kMayOmitValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_TEXTFILE, kOptional, kMayOmitValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_RESULT, kOptional, kMayOmitValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_APPEND, kOptional, kNeedsValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_PW, kOptional, kNeedsValue},
    {2, kKeyword, "", "", ModifierId::MODIFIER_DEMONSTRATION_FILE, kOptional, kNeedsValue},
    {0, 0, "", "", 0, 0, 0},
};

TokenRoot::TokenRoot()
{
    tokenType = TOKEN_TYPE_ROOT;
}

void TokenRoot::addCommonModifiersForAllCommands(TokenInitializer::TOKEN_INITIALIZER const* rows)
{
    commonCommand.initModifiers(rows);
}

TokenCmd* TokenRoot::findCmd(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item, std::string& err) const
{
    err.clear();
    if (action == CmdAction::ACTION_NO_ACTION || item == CmdItem::ITEM_NONE)
        return nullptr;
    for (Token* child : children) {
        if (child->tokenType != TOKEN_TYPE_CMD)
            continue;
        TokenCmd* const cmd = static_cast<TokenCmd*>(child);
        if (cmd->action == action && cmd->item == item)
            return cmd;
    }
    err = "\"" + CmdAction::table().textFromVal(action) + " " + CmdItem::table().textFromVal(item) +
        "\" is not a valid command";
    return nullptr;
}

void TokenRoot::resetModifierRequiredParamValues()
{
    for (Token* child : children)
        if (child->tokenType == TOKEN_TYPE_CMD)
            static_cast<TokenCmd*>(child)->resetModifierRequiredParamValues();
}

bool TokenRoot::isGroupDisabled(int32_t group) const
{
    return std::find(std::begin(disabledGroups), std::end(disabledGroups), group) != std::end(disabledGroups);
}

bool TokenRoot::isGroupHidden(int32_t group) const
{
    return std::find(std::begin(hiddenGroups), std::end(hiddenGroups), group) != std::end(hiddenGroups);
}

void TokenRoot::getListOfAvailableActions(std::vector<CmdAction::CMD_ACTION>& actions) const
{
    for (Token* child : children) {
        if (child->tokenType != TOKEN_TYPE_CMD)
            continue;
        TokenCmd const* const cmd = static_cast<TokenCmd const*>(child);
        if (!isGroupHidden(cmd->commandGroup))
            appendOnce(actions, cmd->action);
    }
}

// Cache statistics have their own menu entry and never show among the items.
void TokenRoot::getListOfAvailableItemsForSpecificAction(CmdAction::CMD_ACTION action,
                                                         std::vector<CmdItem::CMD_ITEM>& items) const
{
    for (Token* child : children) {
        if (child->tokenType != TOKEN_TYPE_CMD)
            continue;
        TokenCmd const* const cmd = static_cast<TokenCmd const*>(child);
        if (cmd->action == action && !isGroupHidden(cmd->commandGroup) && cmd->item != CmdItem::ITEM_CACHE_STATISTICS)
            appendOnce(items, cmd->item);
    }
}

// A script line is parsed and run in the tree of the running command. The
// caller prints parsing failures and saves nothing.
int TokenRoot::execOneCommandLine(std::string const& line, std::string& err, unsigned int iteration) const
{
    if (!parser) {
        err = "No command-line parser is active";
        return ZEKCLI_PARSE_FAIL;
    }
    parser->commandLine = line;
    return parser->runCommandLine(err, iteration).rc;
}
