// Abbreviation lookup: exact words win, prefixes must be unambiguous, and the
// failure texts are exact.
#include <gtest/gtest.h>

#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/EnumStrList.h"
#include "core/ModifierId.h"

namespace {

template <typename Table>
std::string lookupError(Table const& table, std::string const& text)
{
    std::string err = "left over";
    table.valFromPartialText(text, err);
    return err;
}

} // namespace

TEST(EnumStrList, AddStoresLowercaseTextAtTheNextPosition)
{
    EnumStrList<int> list;
    list.add(7, "Alpha");
    list.add(3, "BETA");
    EXPECT_EQ(list.size(), 2u);
    EXPECT_EQ(list.textFromVal(0), "alpha");
    EXPECT_EQ(list.textFromVal(1), "beta");
    EXPECT_EQ(list.textFromVal(2), "");
}

TEST(EnumStrList, ExactAndAbbreviatedActionsAreFound)
{
    std::string err = "left over";
    EXPECT_EQ(CmdAction::table().valFromPartialText("SHOW", err), CmdAction::ACTION_SHOW);
    EXPECT_EQ(err, "");
    EXPECT_EQ(CmdAction::table().valFromPartialText("sh", err), CmdAction::ACTION_SHOW);
    EXPECT_EQ(err, "");
}

TEST(EnumStrList, AmbiguousActionListsCandidatesInTableOrder)
{
    EXPECT_EQ(lookupError(CmdAction::table(), "s"),
              "Ambiguous selection, please choose \"save\" \"script\" \"set\" \"show\" or \"stop\"");
    EXPECT_EQ(lookupError(CmdAction::table(), "re"),
              "Ambiguous selection, please choose \"remove\" \"report\" \"restart\" \"restore\" or \"retval\"");
}

TEST(EnumStrList, AmbiguityResultIsZero)
{
    std::string err;
    EXPECT_EQ(CmdAction::table().valFromPartialText("s", err), 0);
}

TEST(EnumStrList, TwoCandidatesReadWithOrAndNoLineFeed)
{
    EXPECT_EQ(lookupError(ModifierId::table(), "h"),
              "Ambiguous selection, please choose \"help\" or \"host_cluster_type\"");
}

TEST(EnumStrList, UnknownWordKeepsItsSpellingAndEndsInLineFeed)
{
    std::string err;
    EXPECT_EQ(CmdAction::table().valFromPartialText("Frobnicate", err), 0);
    EXPECT_EQ(err, "\"Frobnicate\" is not recognized\n");
}

TEST(EnumStrList, ExactMatchBeatsLongerPrefixMatches)
{
    std::string err;
    EXPECT_EQ(CmdItem::table().valFromPartialText("fc", err), CmdItem::ITEM_FC);
    EXPECT_EQ(err, "");
    EXPECT_EQ(CmdItem::table().valFromPartialText("fc_", err), CmdItem::ITEM_FC_PORT);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ModifierId::table().valFromPartialText("update", err), ModifierId::MODIFIER_UPDATE);
    EXPECT_EQ(err, "");
}

TEST(EnumStrList, ExactMatchBeatsEarlierPrefixMatches)
{
    EnumStrList<int> list;
    list.add(0, "abcd");
    list.add(1, "abc");
    list.add(2, "ab");
    list.add(3, "abz");
    std::string err = "left over";
    EXPECT_EQ(list.valFromPartialText("AB", err), 2);
    EXPECT_EQ(err, "");
    EXPECT_EQ(list.valFromPartialText("a", err), 0);
    EXPECT_EQ(err, "Ambiguous selection, please choose \"abcd\" \"abc\" \"ab\" or \"abz\"");
}

TEST(EnumStrList, EmptyTextIsEntryZeroForItemsAndKeywords)
{
    std::string err = "left over";
    EXPECT_EQ(CmdItem::table().valFromPartialText("", err), CmdItem::ITEM_NONE);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ModifierId::table().valFromPartialText("", err), ModifierId::MODIFIER_NONE);
    EXPECT_EQ(err, "");
}

TEST(EnumStrList, EmptyTextIsAmbiguousAmongActions)
{
    std::string const err = lookupError(CmdAction::table(), "");
    EXPECT_EQ(err.rfind("Ambiguous selection, please choose \"no_action\" \"add\" ", 0), 0u) << err;
    EXPECT_NE(err.find("or \"wait\""), std::string::npos) << err;
}

TEST(EnumStrList, QuestionMarkIsAWord)
{
    std::string err;
    EXPECT_EQ(CmdAction::table().valFromPartialText("?", err), CmdAction::ACTION_QUESTION);
    EXPECT_EQ(ModifierId::table().valFromPartialText("?", err), ModifierId::MODIFIER_QUESTION);
    EXPECT_EQ(err, "");
}

TEST(EnumStrList, LongAndHighByteTextsAreSimplyNotRecognized)
{
    std::string const longText(10000, 'x');
    EXPECT_EQ(lookupError(CmdAction::table(), longText), "\"" + longText + "\" is not recognized\n");
    std::string const high = "sh\xe9\xff";
    EXPECT_EQ(lookupError(CmdAction::table(), high), "\"" + high + "\" is not recognized\n");
}
