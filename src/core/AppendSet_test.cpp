#include <gtest/gtest.h>

#include "core/AppendSet.h"
#include "support/CoreTestTree.h"

using AppendSets = CoreTreeTest;

TEST_F(AppendSets, SavedKeywordsStandInForTheSet)
{
    EXPECT_EQ(0, run("set append -append=x -quiet"));
    EXPECT_EQ("-append=x --> -quiet\n\n", out);
    EXPECT_EQ(0, run("show lun -append=x"));
    EXPECT_EQ("", out);
    EXPECT_EQ(1, showLun->runs);
}

TEST_F(AppendSets, EmptyTextRemovesAnExistingSet)
{
    ASSERT_EQ(0, run("set append -append=x -quiet"));
    EXPECT_EQ(0, run("set append -append=x"));
    EXPECT_EQ("-append=x contents cleared\n\n", out);
    EXPECT_EQ(52, run("show append -append=x"));
    EXPECT_NE(std::string::npos, err.find("x is not recognized"));
}

TEST_F(AppendSets, EmptyTextForAnUnknownSetCreatesAnEmptyOne)
{
    EXPECT_EQ(0, run("set append -append=new"));
    EXPECT_EQ("-append=new contents cleared\n\n", out);
    std::string lookupErr;
    parser.root.getAppendSet("new", lookupErr);
    EXPECT_EQ("", lookupErr);
    EXPECT_EQ(MHBA_E_OBJECT_NOT_FOUND, run("show append -append=new"));
    EXPECT_EQ("Append set \"new\" not found", err);
    EXPECT_EQ("\r             \r*** API text of 1206 -- Append set \"new\" not found\n", out);
}

TEST_F(AppendSets, UnknownSetFailsInTheParser)
{
    EXPECT_EQ(52, run("show append -append=nosuch"));
    EXPECT_EQ(0u, err.find("nosuch is not recognized"));
}

TEST_F(AppendSets, NamesAreKeptInLowerCase)
{
    ASSERT_EQ(0, run("set append -append=ABC -zek=1"));
    EXPECT_EQ("-append=ABC --> -zek=1\n\n", out);
    EXPECT_EQ("abc", parser.root.commonCommand.findModifier(ModifierId::MODIFIER_APPEND, err)->children[0]->name);
    std::string lookupErr;
    EXPECT_EQ("-zek=1", parser.root.getAppendSet("ABC", lookupErr));
}

TEST_F(AppendSets, QuotedValueCarriesNameAndText)
{
    EXPECT_EQ(0, run("set append -append=\"y -quiet\""));
    EXPECT_EQ("-append=y -->  -quiet\n\n", out);
}

TEST_F(AppendSets, ShowListsEverySetWithoutItsPlainName)
{
    ASSERT_EQ(0, run("set append -append=one -quiet"));
    ASSERT_EQ(0, run("set append -append=two -zek=2"));
    EXPECT_EQ(0, run("show append"));
    EXPECT_EQ("-append= --> \"-quiet\"\n-append= --> \"-zek=2\"\n\n", out);
}

TEST_F(AppendSets, ShowOneSet)
{
    ASSERT_EQ(0, run("set append -append=two -zek=2"));
    EXPECT_EQ(0, run("show append -append=two"));
    EXPECT_EQ("-append= --> \"-zek=2\"\n\n", out);
}

TEST_F(AppendSets, NameWithBlankIsShownQuoted)
{
    EXPECT_EQ("-append=\"a b\" --> \"-quiet\"\n", appendSetDisplayLine("a b", "-quiet"));
    EXPECT_EQ("-append= --> \"-quiet\"\n", appendSetDisplayLine("ab", "-quiet"));
}

TEST_F(AppendSets, SetWithoutNameIsRefused)
{
    parser.commandLine = "set append -append=x";
    ASSERT_EQ(0, parser.parseCommandLine(err));
    parser.currentCmd->findModifier(ModifierId::MODIFIER_APPEND, err)->value.clear();
    EXPECT_EQ(52, parser.currentCmd->execCommand(err));
    EXPECT_EQ("-append=... must be used to supply a name for the saved command line text", err);
}

TEST_F(AppendSets, PrefixReachesTheOnlyMatchingSet)
{
    parser.root.updateAppendSet("abc", "-quiet");
    parser.root.updateAppendSet("ab", "-zek=1");
    std::string lookupErr;
    EXPECT_EQ("-zek=1", parser.root.getAppendSet("abc", lookupErr));
    EXPECT_EQ("", lookupErr);
}

TEST_F(AppendSets, SetThatNamesItselfStopsWithTooLong)
{
    ASSERT_EQ(0, run("set append -append=loop -zek=1 -append=loop"));
    EXPECT_EQ(52, run("show lun -append=loop"));
    EXPECT_NE(std::string::npos, err.find("Command line got too long"));
    EXPECT_EQ(0, showLun->runs);
}

TEST_F(AppendSets, EmptyNameWithOneSetChoosesIt)
{
    parser.root.updateAppendSet("only", "-quiet");
    std::string lookupErr;
    EXPECT_EQ("-quiet", parser.root.getAppendSet("", lookupErr));
    parser.root.updateAppendSet("other", "-zek=1");
    EXPECT_EQ("", parser.root.getAppendSet("", lookupErr));
    EXPECT_EQ("No default selection", lookupErr);
}
