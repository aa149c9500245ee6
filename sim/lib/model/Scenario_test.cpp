#include "model/Scenario.h"

#include "model/DefaultSan.h"

#include <gtest/gtest.h>

using namespace sim;

TEST(ScenarioTest, DefaultSanSurvivesARoundTrip)
{
    San san = defaultSan();
    std::string text = scenarioToText(san);
    San back;
    std::string error;
    ASSERT_TRUE(scenarioFromText(text, "x.json", back, error)) << error;
    EXPECT_EQ(scenarioToText(back), text);
}

TEST(ScenarioTest, MalformedJsonNamesTheFile)
{
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText("{ \"format\": ", "/tmp/bad.json", san, error));
    EXPECT_EQ(error.rfind("/tmp/bad.json: ", 0), 0u) << error;
}

TEST(ScenarioTest, NewerVersionIsRefused)
{
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText(R"({"format":"hbasim-scenario","version":7})", "f", san, error));
    EXPECT_NE(error.find("format version 7 is not supported"), std::string::npos) << error;
}

TEST(ScenarioTest, NotAScenario)
{
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText(R"({"version":1})", "f", san, error));
    EXPECT_NE(error.find("not an hbasim scenario"), std::string::npos) << error;
    EXPECT_FALSE(scenarioFromText("[1,2]", "f", san, error));
}

TEST(ScenarioTest, MisspeltFieldIsNamed)
{
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText(
        R"({"format":"hbasim-scenario","version":1,"hosts":[{"agent":"","nodeNmae":"x"}]})", "f", san, error));
    EXPECT_EQ(error, "f: unknown field \"/hosts/0/nodeNmae\"");
}

TEST(ScenarioTest, WrongTypeIsReported)
{
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText(R"({"format":"hbasim-scenario","version":1,"hosts":"many"})", "f", san, error));
    EXPECT_EQ(error.rfind("f: ", 0), 0u);
}

TEST(ScenarioTest, BadReferencesAreRefused)
{
    San san = defaultSan();
    san.luns[0].paths[0].target = "nowhere";
    std::string error;
    EXPECT_FALSE(validateSan(san, error));
    EXPECT_NE(error.find("unknown target \"nowhere\""), std::string::npos);

    san = defaultSan();
    san.adapters[1].id = san.adapters[0].id;
    EXPECT_FALSE(validateSan(san, error));
    EXPECT_NE(error.find("defined twice"), std::string::npos);

    san = defaultSan();
    san.clusters.push_back(san.clusters[0]);
    san.clusters.back().id = "other";
    EXPECT_FALSE(validateSan(san, error));
    EXPECT_NE(error.find("more than one cluster"), std::string::npos);
}

TEST(ScenarioTest, AdapterIdsAreHexText)
{
    u64 id = 0;
    EXPECT_TRUE(parseAdapterId("0x2000001B32A10C00", id));
    EXPECT_EQ(id, 0x2000001B32A10C00ull);
    EXPECT_TRUE(parseAdapterId("ab", id));
    EXPECT_EQ(id, 0xABu);
    EXPECT_FALSE(parseAdapterId("xyz", id));
    EXPECT_FALSE(parseAdapterId("12345678901234567", id));
    EXPECT_EQ(adapterIdText(0x2000001B32A10C00ull), "2000001B32A10C00");
}

TEST(ScenarioTest, AgentAddressesAreNumericAndCanonical)
{
    San san = defaultSan();
    std::string error;
    san.hosts[1].agent = "agent.example";
    EXPECT_FALSE(validateSan(san, error));
    EXPECT_EQ(error, "host agent \"agent.example\" is not a numeric IPv4 or IPv6 address");
    san.hosts[1].agent = "127.000.010.001";
    EXPECT_FALSE(validateSan(san, error));
    san.hosts[1].agent = "0:0::1";
    EXPECT_FALSE(validateSan(san, error));
    EXPECT_EQ(error, "host agent \"0:0::1\" must be written \"::1\"");
}
