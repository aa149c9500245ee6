#include "model/Scenario.h"

#include "model/DefaultSan.h"

#include <gtest/gtest.h>

#include <functional>

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
    EXPECT_FALSE(scenarioFromText(R"({"format":"hbasim-scenario","version":1,"hosts":[{"agent":"","nodeNmae":"x"}]})",
                                  "f", san, error));
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

// Each rule of the model, with the words it is reported in.
TEST(ScenarioTest, EveryRuleOfTheModelIsNamed)
{
    struct Case {
        std::function<void(San&)> breakRule;
        std::string message;
    };
    const std::string first = "adapter " + adapterIdText(defaultSan().adapters[0].id.value);
    const std::string second = "adapter " + adapterIdText(defaultSan().adapters[1].id.value);
    const std::vector<Case> cases = {
        {[](San& s) { s.hosts.push_back(s.hosts[0]); }, "host \"\" is defined twice"},
        {[](San& s) { s.adapters[0].host = "127.0.9.9"; }, first + " names host \"127.0.9.9\", which is not defined"},
        {[](San& s) { s.adapters[1].device = s.adapters[0].device; }, second + " uses device 0 twice on its host"},
        {[](San& s) { s.adapters[0].state = 3; }, first + " has state 3 (1 online, 2 offline)"},
        {[](San& s) { s.adapters[0].ports.resize(5); }, first + " has more than 4 ports"},
        {[](San& s) { s.adapters[0].drives.resize(65); }, first + " has more than 64 drives"},
        {[](San& s) {
             s.adapters[0].drives.resize(1);
             s.adapters[0].drives[0].id = "d0";
             s.adapters[0].drives[0].smart.resize(33);
         },
         first + " drive d0 has more than 32 SMART attributes"},
        {[](San& s) { s.adapters[0].binaryFiles["fw.bin"] = "not base64"; },
         first + " file \"fw.bin\" is not valid base64"},
        {[](San& s) { s.adapters[0].binaryFiles["fw.bin"] = "Zh=="; }, first + " file \"fw.bin\" is not valid base64"},
        {[](San& s) {
             s.adapters[0].files["fw.bin"] = "text";
             s.adapters[0].binaryFiles["fw.bin"] = "Zg==";
         },
         first + " file \"fw.bin\" is both in \"files\" and in \"binaryFiles\""},
        {[](San& s) {
             s.clusters.push_back(s.clusters[0]);
             s.clusters.back().members.clear();
         },
         "cluster \"" + defaultSan().clusters[0].id + "\" is defined twice"},
        {[](San& s) { s.clusters[0].members.push_back(AdapterId{0xABC}); },
         "cluster \"" + defaultSan().clusters[0].id + "\" names unknown adapter ABC"},
        {[](San& s) { s.targets.push_back(s.targets[0]); },
         "target \"" + defaultSan().targets[0].name + "\" is defined twice"},
        {[](San& s) { s.luns[0].wwuln.clear(); }, "a LUN has no wwuln"},
        {[](San& s) { s.luns[1].wwuln = s.luns[0].wwuln; },
         "LUN \"" + defaultSan().luns[0].wwuln + "\" is defined twice"},
        {[](San& s) { s.luns[0].codeSet = 3; },
         "LUN \"" + defaultSan().luns[0].wwuln + "\" has codeSet 3 (1 binary, 2 text)"},
        {[](San& s) { s.luns[1].paths.push_back(s.luns[0].paths[0]); },
         "LUN \"" + defaultSan().luns[1].wwuln + "\" reuses LUN number " +
             std::to_string(defaultSan().luns[0].paths[0].lun) + " of target \"" +
             defaultSan().luns[0].paths[0].target + "\""},
        {[](San& s) {
             s.luns[0].cached = true;
             s.luns[0].cache.adapter = AdapterId{0xABC};
         },
         "LUN \"" + defaultSan().luns[0].wwuln + "\" is cached on unknown adapter ABC"},
        {[](San& s) { s.luns[0].cache.lockedRanges.resize(17); },
         "LUN \"" + defaultSan().luns[0].wwuln + "\" has more than 16 locked ranges"},
        {[](San& s) {
             s.luns[0].local = true;
             s.luns[0].localInfo.owner = AdapterId{0xABC};
         },
         "LUN \"" + defaultSan().luns[0].wwuln + "\" belongs to unknown adapter ABC"},
    };
    std::string error;
    ASSERT_TRUE(validateSan(defaultSan(), error)) << error;
    for (const Case& c : cases) {
        San san = defaultSan();
        c.breakRule(san);
        error.clear();
        EXPECT_FALSE(validateSan(san, error)) << c.message;
        EXPECT_EQ(error, c.message);
    }
}

TEST(ScenarioTest, BinaryFilesSurviveARoundTripAsBase64)
{
    San san = defaultSan();
    san.adapters[0].binaryFiles["fw.bin"] = "AP8Q";
    std::string text = scenarioToText(san);
    EXPECT_NE(text.find("\"binaryFiles\": {\n    \"fw.bin\": \"AP8Q\"\n   }"), std::string::npos) << text;
    San back;
    std::string error;
    ASSERT_TRUE(scenarioFromText(text, "x.json", back, error)) << error;
    EXPECT_EQ(back.adapters[0].binaryFiles, san.adapters[0].binaryFiles);
    EXPECT_EQ(scenarioToText(back), text);
}

TEST(ScenarioTest, DamagedBase64InAScenarioIsNamed)
{
    const std::string text = R"({"format":"hbasim-scenario","version":1,"hosts":[{}],)"
                             R"("adapters":[{"id":"2A","binaryFiles":{"fru.img":"AP8Q=="}}]})";
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText(text, "s.json", san, error));
    EXPECT_EQ(error, "s.json: adapter 2A file \"fru.img\" is not valid base64");
}

TEST(ScenarioTest, ADrivesOwnerIsWrittenOnlyWhileItNamesAnAdapter)
{
    const San original = defaultSan();
    San san = original;
    san.adapters[0].drives[1].owner.value = 0x2000001B32A1DEADull;
    std::string text = scenarioToText(san);
    EXPECT_NE(text.find("\"owner\": \"2000001B32A1DEAD\""), std::string::npos);
    San back;
    std::string error;
    ASSERT_TRUE(scenarioFromText(text, "x.json", back, error)) << error;
    EXPECT_EQ(back.adapters[0].drives[1].owner.value, 0x2000001B32A1DEADull);
    EXPECT_EQ(back.adapters[0].drives[0].owner.value, 0u);
    back.adapters[0].drives[1].owner = AdapterId{};
    EXPECT_EQ(scenarioToText(back), scenarioToText(original));
}
