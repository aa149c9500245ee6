#include <gtest/gtest.h>
#include <set>

#include "support/CoreTestTree.h"

namespace {

std::string const kStars(55, '*');

std::string summaryTail(TokenRoot const& root)
{
    return "\n\n\n" + kStars + "\n* Modifiers common to all CLI commands\n" + kStars + "\n" +
        root.commonModifierHelp() +
        "\n\n\nFor more detail on any of these commands start CLI with\nthe action and item followed by -help or "
        "-?\n";
}

} // namespace

using Help = CoreTreeTest;

TEST_F(Help, SummaryOfAFirstRunShowsLunConfiguration)
{
    EXPECT_EQ(0, run("? cli"));
    EXPECT_EQ(0u,
              out.find("  Usage:\n    ? cli \n \n\n    clear display \n \n\n    create lun \n\t-size=<GB>\n\n"
                       "    help cli \n"));
    EXPECT_EQ(out.size() - summaryTail(parser.root).size() - 1, out.find(summaryTail(parser.root)));
}

TEST_F(Help, HiddenGroupsAreLeftOutOfTheSummary)
{
    parser.root.hiddenGroups[0] = TokenCmd::GROUP_LUN_CONFIG;
    EXPECT_EQ(0, run("help"));
    EXPECT_EQ(std::string::npos, out.find("create lun"));
    EXPECT_NE(std::string::npos, out.find("    show lun \n\t[-lun_number=<number>]\n"));
}

TEST_F(Help, SummaryGoesToHelpLog)
{
    EXPECT_EQ(0, run("help -textfile -quiet"));
    EXPECT_EQ("", out);
    EXPECT_EQ(0u, readWholeFile(dir.file("help.log")).find("  Usage:"));
}

TEST_F(Help, ConstraintListIncludesHiddenCommands)
{
    parser.root.hiddenGroups[0] = TokenCmd::GROUP_LUN_CONFIG;
    createLun->helpNotes = "\tOnly on adapters with drives.\n";
    EXPECT_EQ(0, run("help -constraint"));
    EXPECT_EQ("  CLI commands with usage constraints:"
              "\n    create lun \n\tOnly on adapters with drives.\n\n\n"
              "\n    show lun \n\tNeeds a cached LUN.\n\n\n\n",
              out);
}

TEST_F(Help, OneCharacterNotesCountAsNone)
{
    showLun->helpNotes = " ";
    EXPECT_EQ(0, run("help -constraint"));
    EXPECT_EQ("  CLI commands with usage constraints:\n", out);
}

TEST_F(Help, DetailedHelpOfOneCommand)
{
    showLun->helpModifiers = "-lun_number=<number>\n";
    showLun->helpExamples = showLun->ugCommandPrompt() + "-lun_number=2\n";
    EXPECT_EQ(0, run("show lun -help"));
    EXPECT_EQ("\nSyntax: show lun\n\t[-lun_number=<number>]\n\nModifiers:\n-lun_number=<number>\n"
              "\n\nNotes:\n\tNeeds a cached LUN.\n"
              "\n\nExamples: \nadmin@localhost:~/> cli show lun -lun_number=2\n\n\n\n",
              out);
    EXPECT_EQ(0, showLun->runs);
}

TEST_F(Help, DetailedHelpWithResultShowsTheRecordLayout)
{
    EXPECT_EQ(0, run("retval cli -? -result"));
    std::string const layout = "\n\nResult File: " + parser.root.commonResultHelp() + "\n\n\n";
    EXPECT_EQ(out.size() - layout.size() - 1, out.find(layout));
    EXPECT_EQ("\tint    nHeaderSizeInBytes;  8*sizeof(int) = 32 bytes\n"
              "\tint    apiVersion[4];\n"
              "\tint    cmdAction;           (See CmdAction::CMD_ACTION)\n"
              "\tint    cmdItem;             (See CmdItem::CMD_ITEM)\n"
              "\tint    completionStatus;    {See HbaMgmtApi::MHBA_RETURN\n",
              parser.root.commonResultHelp());
}

TEST_F(Help, EmptyHelpStringsShowAsBlanks)
{
    createLun->helpSyntax.clear();
    EXPECT_EQ(0, run("create lun -help"));
    EXPECT_EQ("\nSyntax: create lun\n \n\nModifiers:\n \n\nExamples:  \n\n\n", out);
}

TEST_F(Help, DisabledCommandIsRefusedWithItsSyntaxUnlessHidden)
{
    parser.root.disabledGroups[0] = TokenCmd::GROUP_ORDINARY;
    parser.commandLine = "show lun";
    ASSERT_EQ(0, parser.parseCommandLine(err));
    ::testing::internal::CaptureStdout();
    EXPECT_TRUE(parser.displayDetailedHelp(err));
    EXPECT_EQ("*** This command is not enabled\n    show lun \n\t[-lun_number=<number>]\n\n",
              ::testing::internal::GetCapturedStdout());

    parser.root.hiddenGroups[0] = TokenCmd::GROUP_ORDINARY;
    ::testing::internal::CaptureStdout();
    EXPECT_TRUE(parser.displayDetailedHelp(err));
    EXPECT_EQ("*** This command is not enabled\n", ::testing::internal::GetCapturedStdout());
}

TEST_F(Help, UnknownCommandShowsTheSummary)
{
    parser.currentCmd = nullptr;
    std::string text;
    ::testing::internal::CaptureStdout();
    EXPECT_TRUE(parser.displayDetailedHelp(text));
    EXPECT_EQ(0u, ::testing::internal::GetCapturedStdout().find("  Usage:"));
    EXPECT_EQ("Unrecognized command syntax\n", text);

    text = "\"stop cli\" is not a valid command";
    ::testing::internal::CaptureStdout();
    EXPECT_FALSE(parser.displayDetailedHelp(text));
    EXPECT_EQ(text + "\n", ::testing::internal::GetCapturedStdout());
}

TEST_F(Help, CommandTexts)
{
    EXPECT_EQ("admin@localhost:~/> cli ", showLun->ugOsPrompt());
    EXPECT_EQ("show lun ", showLun->ugCommand());
    EXPECT_EQ("show lun", showLun->ugCommandLowCase());
    EXPECT_EQ("Show Lun", showLun->ugCommandCapitalized());
    EXPECT_EQ("\nadmin@localhost:~/> cli show lun ", showLun->ugCommandPrompt());
    EXPECT_EQ("  Command syntax:\n    show lun\n\t[-lun_number=<number>]", showLun->cmdHelpText());
}

TEST_F(Help, CommonModifierHelpNamesEveryCommonKeyword)
{
    std::string const text = parser.root.commonModifierHelp();
    EXPECT_EQ(0u, text.find("\n-help\tDisplays detailed help for this command\n\n-zek = "));
    for (char const* head :
         {"\n-agent=<IP address of host running remote agent>\n", "\n-demonstration_file = <File Name>\n", "\n-echo\n",
          "\n-quiet\n", "\n-show_only_error\n", "\n-textfile = <File Name>\n", "\n-result = <File Name>\n"})
        EXPECT_NE(std::string::npos, text.find(head)) << head;
    EXPECT_NE(std::string::npos, text.find("rmtagent_zek"));
    std::string const ending = "\tDefault location is the working directory\n\n";
    EXPECT_EQ(text.size() - ending.size(), text.find(ending));
}

TEST_F(Help, ItemListForMenusWrapsAt70)
{
    std::string text = "show";
    parser.root.getItemListAsHelpTextForSpecificAction(CmdAction::ACTION_SHOW, text);
    EXPECT_EQ("show            [ lun | append ]", text);
    text = "stop";
    parser.root.getItemListAsHelpTextForSpecificAction(CmdAction::ACTION_STOP, text);
    EXPECT_EQ("stop", text);
}

TEST_F(Help, GeneratedDocumentationFragments)
{
    std::filesystem::create_directory(dir.file("doc"));
    std::string const base = dir.file("doc/cli");
    EXPECT_EQ(0, run("help -genhelpdoc=\"" + base + "\""));
    EXPECT_EQ("", out);

    std::set<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(dir.file("doc")))
        names.insert(entry.path().filename().string());
    // The first item number depends on earlier runs in this process.
    int first = 1 << 30;
    for (std::string const& name : names)
        if (name.find('_') == std::string::npos)
            first = std::min(first, std::stoi(name.substr(3)));
    auto const n = [&](int offset) { return std::to_string(first + offset); };

    std::set<std::string> expected;
    auto const command = [&](std::string const& stem, int number) {
        expected.insert(stem + "_" + std::to_string(number) + ".txt");
        for (int part = 1; part <= 8; ++part)
            expected.insert(stem + "_" + std::to_string(number) + "_" + std::to_string(part) + ".txt");
    };
    for (int item = 0; item <= 8; ++item)
        expected.insert("cli" + n(item) + ".txt");
    command("cli" + n(0), 1);        // ? cli
    command("cli" + n(1), 1);        // clear display
    command("cli" + n(2), 1);        // create lun
    command("cli" + n(3), 1);        // help cli
    command("cli" + n(3), 2);        // retval cli, same item
    command("cli" + n(4), 1);        // set append
    command("cli" + n(5), 1);        // show lun
    command("cli" + n(6) + n(6), 1); // show append: same action, new item
    command("cli" + n(7), 1);        // version cli
    command("cli" + n(8), 1);        // wait time
    EXPECT_EQ(expected, names);

    EXPECT_EQ("cli", readWholeFile(base + n(0) + ".txt"));
    EXPECT_EQ("retval cli", readWholeFile(base + n(3) + "_2_2.txt"));
    EXPECT_EQ(" ", readWholeFile(base + n(5) + "_1.txt"));
    EXPECT_EQ(parser.root.commonResultHelp() + " \n ", readWholeFile(base + n(5) + "_1_8.txt"));
}

TEST_F(Help, GeneratedDocumentationIntoAMissingFolderFails)
{
    EXPECT_EQ(54, run("help -genhelpdoc=\"/nonexistent/cli\""));
}
