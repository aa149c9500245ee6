// The rows by which a command declares itself, written the same way by every
// command class, and the call that turns them into the command's tokens.
#pragma once

#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ModifierId.h"
#include "core/Token.h"
#include "core/TokenCmd.h"
#include "core/TokenInitializer.h"

// The first row of a declaration: the command itself.
constexpr TokenInitializer::TOKEN_INITIALIZER commandRow(CmdAction::CMD_ACTION action, CmdItem::CMD_ITEM item,
                                                         int group)
{
    return {1, Token::TOKEN_TYPE_CMD, "", "", action, item, group};
}

// One keyword of the command. A few keywords are declared with the initial
// value "~"; it is kept as declared, and no command interprets it.
constexpr TokenInitializer::TOKEN_INITIALIZER keywordRow(ModifierId::MODIFIER_ID id, int requiredKind, int valueKind,
                                                         char const* initialValue = "")
{
    return {2, Token::TOKEN_TYPE_MODIFIER, "", initialValue, id, requiredKind, valueKind};
}

// Closes the keyword list.
constexpr TokenInitializer::TOKEN_INITIALIZER endRow()
{
    return {0, 0, "", "", 0, 0, 0};
}

// The seven optional keywords by which any LUN command names its LUN, always
// in this order, so that help and interactive prompting list them alike.
#define LUN_SELECTOR_ROWS                                                                                              \
    keywordRow(ModifierId::MODIFIER_LUN_WWULN, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),                \
        keywordRow(ModifierId::MODIFIER_LUN_ANY_WWULN, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),        \
        keywordRow(ModifierId::MODIFIER_LUN_SERIAL, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),           \
        keywordRow(ModifierId::MODIFIER_LUN_NUMBER, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),           \
        keywordRow(ModifierId::MODIFIER_VPGINDEX, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),             \
        keywordRow(ModifierId::MODIFIER_FC_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),            \
        keywordRow(ModifierId::MODIFIER_IS_TARGET, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED)

// Declares `command` from `rows`: the command row first, then its keywords up
// to the end row.
void declareCommand(TokenCmd& command, TokenInitializer::TOKEN_INITIALIZER const* rows);
