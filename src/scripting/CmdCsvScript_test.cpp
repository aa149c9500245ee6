#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "commands/CommandOutput.h"
#include "core/ZekcliReturn.h"
#include "scripting/CmdCsvScript.h"
#include "scripting/CsvFile.h"
#include "support/CoreTestTree.h"

namespace {

using Keyword = CmdCsvScriptKeyword;

Keyword literal(ModifierId::MODIFIER_ID id, std::string const& value)
{
    return Keyword(id, Keyword::LITERAL_VALUE, value);
}

Keyword column(ModifierId::MODIFIER_ID id, int index, std::string const& typed)
{
    return Keyword(id, static_cast<Keyword::KEYWORD_VALUE_TYPE>(index), typed);
}

// The tree of the core tests with "script csv" added.
class CsvScriptTest : public CoreTreeTest {
protected:
    void SetUp() override
    {
        CoreTreeTest::SetUp();
        script = new CmdCsvScript;
        parser.root.addChild(script);
    }

    void write(std::string const& name, std::string const& bytes) { std::ofstream(name, std::ios::binary) << bytes; }

    CmdCsvScript* script = nullptr;
};

} // namespace

// ---- the texts ------------------------------------------------------------

TEST(CsvScriptText, HeaderNamesTheFileTheCommandAndEveryKeyword)
{
    std::vector<Keyword> const keywords{literal(ModifierId::MODIFIER_ZEK, "0"),
                                        literal(ModifierId::MODIFIER_ACCEPT_RISK, ""),
                                        column(ModifierId::MODIFIER_LUN_WWULN, 0, "CSV_a")};
    EXPECT_EQ("# Script for comma separated value file luns.csv\n"
              "# >>> script csv -cmd=\"enable cache\" -zek=0 -accept_risk -lun_wwuln=CSV_a\n"
              "#\n",
              CmdCsvScript::headerText("luns.csv", "enable cache", keywords));
}

TEST(CsvScriptText, CommandLineTakesColumnsAndCopiesLiterals)
{
    std::vector<Keyword> const keywords{
        literal(ModifierId::MODIFIER_ZEK, "0"), literal(ModifierId::MODIFIER_ACCEPT_RISK, ""),
        column(ModifierId::MODIFIER_LUN_WWULN, 2, "csv_c"), literal(ModifierId::MODIFIER_MAX_READ, "2014")};
    EXPECT_EQ("\nenable cache  -zek=0 -accept_risk -lun_wwuln=600A -max_read=2014",
              CmdCsvScript::commandLineText("enable cache", keywords, CsvLineCells("x, y , 600A ,z")));
}

TEST(CsvScriptText, EmptyCellDropsTheRow)
{
    std::vector<Keyword> const keywords{column(ModifierId::MODIFIER_LUN_NUMBER, 0, "csv_a"),
                                        column(ModifierId::MODIFIER_FC_TARGET, 1, "csv_b")};
    EXPECT_EQ("", CmdCsvScript::commandLineText("c", keywords, CsvLineCells("2,")));
    EXPECT_EQ("", CmdCsvScript::commandLineText("c", keywords, CsvLineCells(" ,T")));
    EXPECT_EQ("\nc  -lun_number=2 -fc_target=T", CmdCsvScript::commandLineText("c", keywords, CsvLineCells("2,T")));
}

TEST(CsvScriptText, ColumnPastTheLastCellRepeatsTheLastCell)
{
    std::vector<Keyword> const keywords{column(ModifierId::MODIFIER_LUN_NUMBER, 25, "csv_z")};
    EXPECT_EQ("\nc  -lun_number=b", CmdCsvScript::commandLineText("c", keywords, CsvLineCells("a,b")));
}

TEST(CsvScriptText, DoneTextNamesTheScriptOrTheConsole)
{
    EXPECT_EQ("Script file \"out.cfg\" for CSV file \"in.csv\" created successfully",
              CmdCsvScript::doneText("in.csv", "out.cfg"));
    EXPECT_EQ("Script file successfully output to console for CSV file \"in.csv\"",
              CmdCsvScript::doneText("in.csv", ""));
}

// ---- the command ------------------------------------------------------------

TEST_F(CsvScriptTest, KeywordsComeInTheOrderOfTheirIdsAndColumnsAreFoundWithoutCase)
{
    parser.commandLine = "script csv -max_read=2014 -mode=CSV_D -csv_file=in.csv -file=out.cfg -cmd=\"enable cache\" "
                         "-lun_number=csv_ -fc_target=csv_aa -zek=0";
    ASSERT_EQ(0, parser.parseCommandLine(err)) << err;
    std::vector<Keyword> const keywords = script->collectKeywords();
    std::vector<std::string> names;
    for (Keyword const& keyword : keywords)
        names.push_back(ModifierId::table().textFromVal(keyword.id) + "=" + keyword.value + "/" +
                        std::to_string(keyword.valueType));
    EXPECT_EQ((std::vector<std::string>{"zek=0/26", "fc_target=csv_aa/26", "lun_number=csv_/26", "max_read=2014/26",
                                        "mode=CSV_D/3"}),
              names);
}

TEST_F(CsvScriptTest, ScriptFileGetsHeaderRowsAndOneClosingLineEnd)
{
    write("in.csv", "2,T1\r\n\n3,\n4,T2\nlast,no-end");
    ASSERT_EQ(0,
              run("script csv -csv_file=in.csv -file=out.cfg -cmd=\"enable cache\" -lun_number=csv_a "
                  "-fc_target=csv_B -zek=0"))
        << err << out;
    EXPECT_EQ("Script file \"out.cfg\" for CSV file \"in.csv\" created successfully\n", out);
    EXPECT_EQ("# Script for comma separated value file in.csv\n"
              "# >>> script csv -cmd=\"enable cache\" -zek=0 -fc_target=csv_B -lun_number=csv_a\n"
              "#\n"
              "\nenable cache  -zek=0 -fc_target=T1 -lun_number=2"
              "\nenable cache  -zek=0 -fc_target=T2 -lun_number=4"
              "\n",
              readWholeFile("out.cfg"));
}

TEST_F(CsvScriptTest, WithoutFileTheOpenOfAnEmptyNameFails)
{
    write("in.csv", "1\n");
    write("old.cfg", "keep me\n");
    ASSERT_EQ(0, run("script csv -csv_file=in.csv -file=old.cfg -cmd=c -lun_number=csv_a")) << err;
    write("old.cfg", "keep me\n");
    EXPECT_EQ(ZEKCLI_OUTPUT_FAIL, run("script csv -csv_file=in.csv -cmd=c -lun_number=csv_a"));
    EXPECT_EQ("Unable to open file \"\", (No such file or directory)", err);
    EXPECT_EQ("keep me\n", readWholeFile("old.cfg"));
}

TEST_F(CsvScriptTest, MissingCsvFileFails)
{
    EXPECT_EQ(ZEKCLI_OUTPUT_FAIL, run("script csv -csv_file=none.csv -file=out.cfg -cmd=c"));
    EXPECT_EQ("Unable to open file \"none.csv\", (No such file or directory)", err);
    EXPECT_FALSE(std::filesystem::exists("out.cfg"));
}

TEST_F(CsvScriptTest, FolderAsCsvFileIsNotOpened)
{
    std::filesystem::create_directory("folder.csv");
    EXPECT_EQ(ZEKCLI_OUTPUT_FAIL, run("script csv -csv_file=folder.csv -file=out.cfg -cmd=c"));
    EXPECT_EQ("Unable to open file \"folder.csv\", (Is a directory)", err);
}

TEST_F(CsvScriptTest, ConsoleGetsTheHeaderAsDisplayedTextAndTheLinesAsTheyStand)
{
    write("in.csv", "a\nb\n");
    parser.commandLine = "script csv -csv_file=in.csv -cmd=c -name=csv_a";
    ASSERT_EQ(0, parser.parseCommandLine(err)) << err;
    CsvFile input;
    ASSERT_TRUE(input.openFile("in.csv", "r", err));
    CommandOutput out(*script);
    ::testing::internal::CaptureStdout();
    bool const whole = script->writeScript(input, nullptr, out, "in.csv", "c");
    std::fflush(stdout);
    std::string const console = ::testing::internal::GetCapturedStdout();
    EXPECT_TRUE(whole);
    EXPECT_EQ(ZEKCLI_OK, out.end(ZEKCLI_OK, err)) << err;
    EXPECT_EQ("# Script for comma separated value file in.csv\n# >>> script csv -cmd=\"c\" -name=csv_a\n#\n\n"
              "\nc  -name=a\nc  -name=b\n",
              console);
}

TEST_F(CsvScriptTest, FullDiskFailsWith55)
{
    write("in.csv", std::string(100000, 'x') + "\n");
    EXPECT_EQ(ZEKCLI_OUTPUT_FAIL, run("script csv -csv_file=in.csv -file=\"/dev/full\" -cmd=c -name=csv_a"));
    EXPECT_EQ("Unable to write file \"/dev/full\", (No space left on device)", err);
}
