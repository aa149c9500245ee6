#include <gtest/gtest.h>
#include <string>

#include "scripting/CsvFile.h"
#include "support/ScratchFileTest.h"

namespace {

std::string cell(std::string const& line, unsigned index)
{
    return CsvFile::getColumnValueByIndex(line, index);
}

} // namespace

// ---- parseNext ----------------------------------------------------------------

TEST(CsvParseNext, CutsAtTheDelimiterAndKeepsWhatFollows)
{
    std::string rest = "a,b,c";
    EXPECT_EQ("a", CsvFile::parseNext(rest, ","));
    EXPECT_EQ("b,c", rest);
}

TEST(CsvParseNext, WithoutDelimiterHandsBackTheRestAndLeavesItUnchanged)
{
    std::string rest = "last";
    EXPECT_EQ("last", CsvFile::parseNext(rest, ","));
    EXPECT_EQ("last", rest);
}

TEST(CsvParseNext, TwoCharacterDelimiterSkipsOnlyOne)
{
    std::string rest = "a;;b";
    EXPECT_EQ("a", CsvFile::parseNext(rest, ";;"));
    EXPECT_EQ(";b", rest);
}

TEST(CsvParseNext, EmptyCellsComeOutEmpty)
{
    std::string rest = ",x";
    EXPECT_EQ("", CsvFile::parseNext(rest, ","));
    EXPECT_EQ("x", rest);
}

// ---- parseNextSkipQuotedString --------------------------------------------

TEST(CsvParseQuoted, PlainCellCutsAtTheDelimiter)
{
    std::string rest = "a,b";
    EXPECT_EQ("a", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("b", rest);
}

TEST(CsvParseQuoted, NoDelimiterNoQuoteLeavesTheRestUnchanged)
{
    std::string rest = "abc";
    EXPECT_EQ("abc", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("abc", rest);
}

TEST(CsvParseQuoted, QuotedStretchKeepsItsDelimitersAndQuotes)
{
    std::string rest = "\"p,q\",z";
    EXPECT_EQ("\"p,q\"", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("z", rest);
}

TEST(CsvParseQuoted, TextBeforeTheQuoteBelongsToTheCell)
{
    std::string rest = "ab'c,d'e,f";
    EXPECT_EQ("ab'c,d'e", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("f", rest);
}

TEST(CsvParseQuoted, SingleQuotesCloseOnlyOnSingleQuotes)
{
    std::string rest = "'a\",b',c";
    EXPECT_EQ("'a\",b'", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("c", rest);
}

TEST(CsvParseQuoted, UnterminatedQuoteTakesAllAndEmptiesTheRest)
{
    std::string rest = "'open,y";
    EXPECT_EQ("'open,y", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("", rest);
}

TEST(CsvParseQuoted, QuotedStretchFollowedByNoDelimiterTakesAllAndEmptiesTheRest)
{
    std::string rest = "\"p,q\" tail";
    EXPECT_EQ("\"p,q\" tail", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("", rest);
}

TEST(CsvParseQuoted, AnyCharacterOfTheDelimiterCuts)
{
    std::string rest = "a;b,c";
    EXPECT_EQ("a", CsvFile::parseNextSkipQuotedString(rest, ",;"));
    EXPECT_EQ("b,c", rest);
}

TEST(CsvParseQuoted, DoubledQuoteHasNoMeaning)
{
    std::string rest = "\"\"a,b";
    EXPECT_EQ("\"\"a", CsvFile::parseNextSkipQuotedString(rest, ","));
    EXPECT_EQ("b", rest);
}

// ---- removeLeadingAndTrailingWhitespace -----------------------------------

TEST(CsvTrim, BlanksAndTabsOnBothSidesGo)
{
    EXPECT_EQ("a b", CsvFile::removeLeadingAndTrailingWhitespace(" \t a b\t "));
}

TEST(CsvTrim, EmptyOrOnlyBlanksAndTabsGiveEmpty)
{
    EXPECT_EQ("", CsvFile::removeLeadingAndTrailingWhitespace(""));
    EXPECT_EQ("", CsvFile::removeLeadingAndTrailingWhitespace(" \t\t "));
}

TEST(CsvTrim, OtherWhitespaceStays)
{
    EXPECT_EQ("\ra\n", CsvFile::removeLeadingAndTrailingWhitespace(" \ra\n\t"));
}

// ---- getColumnValueByIndex -------------------------------------------------

TEST(CsvColumn, CellsAreTrimmed)
{
    EXPECT_EQ("b", cell("a, b ,c", 1));
    EXPECT_EQ("a", cell("\ta\t,b", 0));
}

TEST(CsvColumn, QuotedCellKeepsItsQuotes)
{
    EXPECT_EQ("\"p,q\"", cell("x,\"p,q\",z", 1));
    EXPECT_EQ("z", cell("x,\"p,q\",z", 2));
}

TEST(CsvColumn, UnterminatedQuoteRunsToTheEnd)
{
    EXPECT_EQ("'unterminated,y", cell("x,'unterminated,y", 1));
}

TEST(CsvColumn, EmptyLineIsEmptyAtEveryIndex)
{
    for (unsigned index : {0u, 1u, 7u, 0xFFFFFFFEu, 0xFFFFFFFFu})
        EXPECT_EQ("", cell("", index)) << index;
}

TEST(CsvColumn, PastTheLastCellTheLastCellRepeats)
{
    EXPECT_EQ("b", cell("a,b", 1));
    EXPECT_EQ("b", cell("a,b", 2));
    EXPECT_EQ("b", cell("a,b", 1000000));
}

TEST(CsvColumn, PastATrailingCommaTheAnswerIsEmpty)
{
    EXPECT_EQ("b", cell("a,b,", 1));
    EXPECT_EQ("", cell("a,b,", 2));
    EXPECT_EQ("", cell("a,b,", 3));
}

TEST(CsvColumn, AllOnesIndexGivesEmpty)
{
    EXPECT_EQ("", cell("a,b,c", 0xFFFFFFFFu));
}

TEST(CsvColumn, HugeIndexOnAWideLineIsTheLastCell)
{
    std::string line;
    for (int i = 0; i < 10000; ++i)
        line += "c" + std::to_string(i) + ",";
    line += "end";
    EXPECT_EQ("c9999", cell(line, 9999));
    EXPECT_EQ("end", cell(line, 0xFFFFFFFEu));
}

TEST(CsvColumn, PastAnUnterminatedQuoteTheAnswerIsEmpty)
{
    EXPECT_EQ("", cell("x,'open", 2));
}

TEST(CsvColumn, NulBytesAreOrdinaryCharacters)
{
    std::string const line("a,b\0c,d", 7);
    EXPECT_EQ(std::string("b\0c", 3), cell(line, 1));
}

// The rule as written: index + 1 cuts of a copy, the last answer trimmed.
std::string columnByRepeatedCuts(std::string const& line, unsigned index)
{
    std::string rest = line;
    std::string value;
    for (unsigned i = 0; i < index + 1u; ++i)
        value = CsvFile::parseNextSkipQuotedString(rest, ",");
    return CsvFile::removeLeadingAndTrailingWhitespace(value);
}

TEST(CsvColumn, OneWalkAnswersLikeRepeatedCuts)
{
    char const* const lines[] = {"",         "a",           "a,b",       "a,b,",  ",,",
                                 " a , b ",  "x,\"p,q\",z", "x,'open,y", "'a',b", "\"q\" t,u",
                                 "a,'b'c,d", "\t,\t",       "'x'",       "a,\"",  "'',,'"};
    for (char const* line : lines) {
        CsvLineCells const cells(line);
        for (unsigned index = 0; index < 8; ++index) {
            EXPECT_EQ(columnByRepeatedCuts(line, index), cells.valueAt(index)) << line << " @" << index;
            EXPECT_EQ(columnByRepeatedCuts(line, index), cell(line, index)) << line << " @" << index;
        }
        EXPECT_EQ("", cells.valueAt(0xFFFFFFFFu));
    }
}

// ---- reading lines ---------------------------------------------------------

namespace {

class CsvFileLines : public ScratchFileTest {
protected:
    // Opens a file of these bytes.
    void open(std::string const& bytes)
    {
        std::string err;
        ASSERT_TRUE(csv.openFile(writeFile("a.csv", bytes), "r", err)) << err;
    }

    CsvFile csv;
};

} // namespace

TEST_F(CsvFileLines, LinesComeOneByOneAndTheUnterminatedLastIsNotUsed)
{
    open("one\r\ntwo\n\nlast");
    ASSERT_TRUE(csv.getNextLine());
    EXPECT_EQ("one", csv.currentLine());
    ASSERT_TRUE(csv.getNextLine());
    EXPECT_EQ("two", csv.currentLine());
    ASSERT_TRUE(csv.getNextLine());
    EXPECT_EQ("", csv.currentLine());
    EXPECT_FALSE(csv.getNextLine());
    EXPECT_EQ("", csv.currentLine()) << "the line before the end stays";
}

TEST_F(CsvFileLines, AtTheEndTheCurrentLineStays)
{
    open("only\n");
    ASSERT_TRUE(csv.getNextLine());
    EXPECT_FALSE(csv.getNextLine());
    EXPECT_FALSE(csv.getNextLine());
    EXPECT_EQ("only", csv.currentLine());
}

TEST_F(CsvFileLines, ClosedFileGivesNoLine)
{
    EXPECT_FALSE(csv.isOpen());
    EXPECT_FALSE(csv.getNextLine());
}

TEST_F(CsvFileLines, MissingFileReportsTheOpenFailure)
{
    std::string err;
    EXPECT_FALSE(csv.openFile(dir.file("none.csv"), "r", err));
    EXPECT_EQ("Unable to open file \"" + dir.file("none.csv") + "\", (No such file or directory)", err);
    EXPECT_FALSE(csv.isOpen());
}

TEST_F(CsvFileLines, OpeningAgainClosesTheFirstFile)
{
    open("a\n");
    std::string err;
    ASSERT_TRUE(csv.openFile(writeFile("b.csv", "b\n"), "r", err));
    ASSERT_TRUE(csv.getNextLine());
    EXPECT_EQ("b", csv.currentLine());
    csv.closeFile();
    EXPECT_FALSE(csv.isOpen());
    EXPECT_FALSE(csv.getNextLine());
}

TEST_F(CsvFileLines, LongLineWithNulBytesIsReadWhole)
{
    std::string big(1 << 20, 'x');
    big[17] = '\0';
    open(big + "\n");
    ASSERT_TRUE(csv.getNextLine());
    EXPECT_EQ(big, csv.currentLine());
}
