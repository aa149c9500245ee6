#include "commands/KeywordHelp.h"

#include <gtest/gtest.h>

TEST(KeywordHelp, OptionalKeywordsStandInBrackets)
{
    EXPECT_EQ(portSyntax(true), "\t-port=<port number>");
    EXPECT_EQ(portSyntax(false), "\t[-port=<port number>]");
    EXPECT_EQ(lbaRangeSyntax(true), "\t-lun_size_lba=<blocks>\n\t-lun_start_lba=<lba>");
    EXPECT_EQ(lbaRangeSyntax(false), "\t[-lun_size_lba=<blocks>]\n\t[-lun_start_lba=<lba>]");
    EXPECT_EQ(adapterSyntax(), "\t-zek=<adapter>");
}

TEST(KeywordHelp, LunSelectorsAreListedInDeclarationOrder)
{
    EXPECT_EQ(lunSelectorSyntax(),
              "\t[-lun_wwuln=<wwuln>]\n"
              "\t[-lun_any_wwuln=<wwuln or serial>]\n"
              "\t[-lun_serial=<serial>]\n"
              "\t[-lun_number=<number>]\n"
              "\t[-vpgindex=<index>]\n"
              "\t[-fc_target=<wwpn>]\n"
              "\t[-is_target=<iscsi name>]");
    std::string const help = "\n" + lunSelectorHelp();
    size_t last = 0;
    for (char const* keyword : {"-lun_wwuln=", "-lun_any_wwuln=", "-lun_serial=", "-lun_number=", "-vpgindex=",
                                "-fc_target=", "-is_target="}) {
        size_t const at = help.find(std::string("\n") + keyword);
        ASSERT_NE(at, std::string::npos) << keyword;
        EXPECT_GE(at + 1, last) << keyword;
        last = at + 1;
    }
    EXPECT_EQ(help.rfind("\n-lun_wwuln=", 0), 0u);
    EXPECT_NE(help.back(), '\n');
}

// The meanings start in the column that the common result header help uses.
TEST(KeywordHelp, ResultLayoutOfOneRecord)
{
    EXPECT_EQ(recordResultHelp("KFcInfo", 176),
              "\tint    nDataSizeInBytes;    180\n"
              "\tKFcInfo image;              the record (176 bytes)\n");
}

TEST(KeywordHelp, ResultLayoutOfARecordList)
{
    EXPECT_EQ(listResultHelp("PLunID", 576, "LUN identifier"),
              "\tint    nDataSizeInBytes;    size of the data that follows + 4\n"
              "\tint    nCountSizeInBytes;   8\n"
              "\tint    nCount;              number of entries that follow\n"
              "\tThen for each entry:\n"
              "\tint    nDataSizeInBytes;    580\n"
              "\tPLunID image;               LUN identifier (576 bytes)\n");
}
