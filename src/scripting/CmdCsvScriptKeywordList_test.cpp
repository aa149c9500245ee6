#include <gtest/gtest.h>
#include <string>

#include "scripting/CmdCsvScriptKeywordList.h"

TEST(CsvScriptKeywordList, TwentySixColumnsFromCsvA)
{
    CmdCsvScriptKeywordList const list;
    ASSERT_EQ(26u, list.size());
    EXPECT_EQ("csv_a", list.textFromVal(CmdCsvScriptKeyword::CSV_A));
    EXPECT_EQ("csv_d", list.textFromVal(static_cast<CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE>(3)));
    EXPECT_EQ("csv_z", list.textFromVal(CmdCsvScriptKeyword::CSV_Z));
}

TEST(CsvScriptKeywordList, OnlyTheWholeWordIsAColumn)
{
    CmdCsvScriptKeywordList const list;
    std::string err;
    EXPECT_EQ(CmdCsvScriptKeyword::CSV_A, list.valFromExactText("csv_a", err));
    EXPECT_TRUE(err.empty());
    EXPECT_EQ(CmdCsvScriptKeyword::CSV_Z, list.valFromExactText("csv_z", err));
    for (char const* literal : {"csv_", "csv_aa", "csv", "csv_A", " csv_a", "", "2014", "csv_{"}) {
        EXPECT_EQ(CmdCsvScriptKeyword::LITERAL_VALUE, list.valFromExactText(literal, err)) << literal;
        EXPECT_EQ(std::string("Exact match not found for ") + literal, err);
    }
}

TEST(CsvScriptKeyword, ColumnsAndLiterals)
{
    CmdCsvScriptKeyword const column(ModifierId::MODIFIER_MODE, static_cast<CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE>(3),
                                     "CSV_D");
    EXPECT_TRUE(column.isColumn());
    EXPECT_EQ(3u, column.column());
    CmdCsvScriptKeyword const literal;
    EXPECT_EQ(CmdCsvScriptKeyword::LITERAL_VALUE, literal.valueType);
    EXPECT_FALSE(literal.isColumn());
}
