#include "scripting/ScriptSections.h"

#include <gtest/gtest.h>

TEST(ScriptSections, CommandWordsComeFromBothTablesByValue)
{
    EXPECT_EQ("set fc", scriptCommandWords(CmdAction::ACTION_SET, CmdItem::ITEM_FC));
    EXPECT_EQ("enable fc_port", scriptCommandWords(CmdAction::ACTION_ENABLE, CmdItem::ITEM_FC_PORT));
    EXPECT_EQ("lock cache", scriptCommandWords(CmdAction::ACTION_LOCK, CmdItem::ITEM_CACHE));
}

TEST(ScriptSections, AValuePastATablesEndGivesAnEmptyWord)
{
    auto const action = static_cast<CmdAction::CMD_ACTION>(CmdAction::ACTION_COUNT + 3);
    auto const item = static_cast<CmdItem::CMD_ITEM>(CmdItem::ITEM_COUNT + 3);
    EXPECT_EQ(" pool", scriptCommandWords(action, CmdItem::ITEM_POOL));
    EXPECT_EQ("add ", scriptCommandWords(CmdAction::ACTION_ADD, item));
}
