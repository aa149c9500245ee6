#include "model/ScenarioCodec.h"

#include "model/Base64.h"
#include "model/DefaultSan.h"
#include "model/Generate.h"
#include "model/SanFields.h"
#include "model/Scenario.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string_view>
#include <type_traits>

using namespace sim;

namespace {

// Every control character, the characters JSON escapes, DEL, and UTF-8 of
// two, three and four bytes.
std::string oddText(int seed)
{
    std::string text = "q\"uote \\ back / slash " + std::to_string(seed) + " ";
    for (int c = 0; c < 0x20; ++c)
        text += static_cast<char>(c);
    text += "\x7f caf\xc3\xa9 \xe2\x88\x91 \xf0\x9f\x98\x80 end";
    return text;
}

// Moves fields off their defaults. With `every` = 1 each field changes; with
// 2 every second one, so that pruning leaves some out at each level.
struct Perturb {
    int seed = 1;
    int every = 1;
    int counter = 0;

    bool pick() { return counter++ % every == 0; }

    void operator()(const char*, bool& flag)
    {
        if (pick())
            flag = !flag;
    }
    void operator()(const char*, double& number)
    {
        if (pick())
            number = number * 1.5 + 0.1 * seed + 1e-7;
    }
    void operator()(const char*, std::string& text)
    {
        if (pick())
            text = oddText(seed);
    }
    void operator()(const char*, AdapterId& id)
    {
        if (pick())
            id.value += 0xABCDEF0123ull + static_cast<u64>(seed);
    }

    template <class T>
    requires std::is_integral_v<T>
    void operator()(const char*, T& number)
    {
        if (pick())
            number = static_cast<T>(number + 7 + seed);
    }

    void operator()(const char* name, std::map<std::string, std::string>& map)
    {
        if (!pick())
            return;
        if (std::string_view(name) == "binaryFiles") {
            // Valid base64 under names of their own, so that the SAN can
            // still pass the checks of the model.
            map["image " + oddText(seed)] = base64::encode(std::string("\x00\xff\xc3", 3) + oddText(seed));
            map["empty.bin"] = "";
            return;
        }
        map["plain"] = "x";
        map[oddText(seed)] = oddText(seed + 1);
        map[""] = "";
    }

    template <class T>
    void operator()(const char*, std::vector<T>& list)
    {
        if (!pick())
            return;
        list.push_back(T{});
        T element{};
        (*this)("", element);
        list.push_back(element);
    }

    template <FieldStruct T>
    void operator()(const char*, T& object)
    {
        if (pick())
            visitFields(*this, object);
    }

    template <class T>
    void operator()(const char*, std::optional<T>& present)
    {
        if (pick())
            visitFields(*this, present.emplace());
    }

    void operator()(const char*, PinnedFigure& figure)
    {
        if (!pick())
            return;
        figure.value += 7 + seed;
        if (seed % 2)
            figure.perSecond = -seed;
    }

    void operator()(const char*, PinnedCounter& counter)
    {
        counter.name = oddText(seed);
        (*this)("", counter.figure);
    }
};

// Statistics pinned in every form the scenario allows.
San pinnedSan()
{
    San san = defaultSan();
    FixedStatistics& fixed = san.adapters[0].fixedStatistics.emplace();
    fixed.counters = {{"UpTime", {3600, 1}}, {"Cache Pool Max MB", {819200, 0}}, {"", {-5, 0}}, {"UpTime", {1, 0}}};
    fixed.hostPcie.assign(kHostPcieFields, 0);
    fixed.hostPcie[9] = 4096;
    fixed.hostPcie[25] = 0xFFFFFFFFll;
    fixed.adapter.readData = {1000, 50};
    san.adapters[1].fixedStatistics.emplace();
    FixedIoStatistics& io = san.luns[0].fixedIoStatistics.emplace();
    io.readCount = {100, 10};
    io.cleanBytes = {1ll << 40, 0};
    san.luns[1].fixedIoStatistics.emplace();
    return san;
}

San perturbed(int every, int seed)
{
    San san = defaultSan();
    Perturb perturb{seed, every};
    visitFields(perturb, san);
    san.format = "hbasim-scenario";
    san.version = kScenarioVersion;
    return san;
}

std::vector<std::pair<std::string, San>> sampleSans()
{
    San special = defaultSan();
    special.adapters[0].ports[0].sfp.temperatureC = -0.0;
    special.adapters[0].ports[0].sfp.voltage = 1e21;
    special.adapters[0].ports[0].sfp.txBiasMa = 1.0 / 3;
    special.adapters[0].ports[0].sfp.txPowerMw = 5e-324;
    special.adapters[0].ports[0].sfp.rxPowerMw = 123456789012345678.0;
    special.adapters[0].bootTime = -9223372036854775807ll - 1;
    special.adapters[0].cachePoolBytes = ~0ull;
    return {
        {"default", defaultSan()},
        {"empty", San{}},
        {"generated 1x1", generateSan(1, 1, 1)},
        {"generated 2x64", generateSan(2, 64)},
        {"generated 5x300", generateSan(5, 300, 7)},
        {"every field off", perturbed(1, 1)},
        {"every second field off", perturbed(2, 2)},
        {"every third field off", perturbed(3, 5)},
        {"pinned statistics", pinnedSan()},
        {"special numbers", special},
    };
}

} // namespace

TEST(ScenarioCodecTest, WritesTheSameBytesAsTheGeneralPath)
{
    for (const auto& [label, san] : sampleSans()) {
        std::string text;
        ASSERT_TRUE(codec::write(san, text)) << label;
        EXPECT_EQ(text, generalScenarioToText(san)) << label;
        EXPECT_EQ(scenarioToText(san), text) << label;
    }
}

TEST(ScenarioCodecTest, ReadsWhatTheGeneralPathReads)
{
    for (const auto& [label, san] : sampleSans()) {
        std::string text = generalScenarioToText(san);
        San fast, general;
        ASSERT_TRUE(codec::read(text, fast)) << label;
        EXPECT_EQ(generalScenarioToText(fast), text) << label;
        std::string error, rule;
        if (generalScenarioFromText(text, "f", general, error)) {
            EXPECT_EQ(generalScenarioToText(fast), generalScenarioToText(general)) << label;
        } else {
            // Fields off their defaults may break a rule of the model; the
            // general path then refuses for that rule and nothing else.
            EXPECT_FALSE(validateSan(fast, rule)) << label << ": " << error;
            EXPECT_EQ(error, "f: " + rule) << label;
        }
    }
}

TEST(ScenarioCodecTest, WholeValuesAreKeptExactly)
{
    San san = sampleSans().back().second;
    San back;
    ASSERT_TRUE(codec::read(scenarioToText(san), back));
    const Sfp& sfp = back.adapters[0].ports[0].sfp;
    EXPECT_EQ(sfp.voltage, 1e21);
    EXPECT_EQ(sfp.txBiasMa, 1.0 / 3);
    EXPECT_EQ(sfp.txPowerMw, 5e-324);
    EXPECT_EQ(back.adapters[0].bootTime, -9223372036854775807ll - 1);
    EXPECT_EQ(back.adapters[0].cachePoolBytes, ~0ull);
    EXPECT_EQ(back.adapters[1].files, san.adapters[1].files);
}

TEST(ScenarioCodecTest, EveryFieldOffIncludesBinaryFiles)
{
    San san = perturbed(1, 1);
    // Lists get a default element and a perturbed one at their end.
    ASSERT_FALSE(san.adapters.empty());
    ASSERT_FALSE(san.adapters.back().binaryFiles.empty());
    San back;
    ASSERT_TRUE(codec::read(scenarioToText(san), back));
    ASSERT_EQ(back.adapters.size(), san.adapters.size());
    EXPECT_EQ(back.adapters.back().binaryFiles, san.adapters.back().binaryFiles);
    EXPECT_EQ(back.adapters.back().files, san.adapters.back().files);
}

TEST(ScenarioCodecTest, Utf8CheckAgreesWithTheWriter)
{
    EXPECT_TRUE(codec::isUtf8(""));
    EXPECT_TRUE(codec::isUtf8(oddText(3)));
    EXPECT_TRUE(codec::isUtf8(std::string("a\0b", 3)));
    for (const char* bad : {"\xff", "\xc3", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "a\xe2\x88", "\x80"})
        EXPECT_FALSE(codec::isUtf8(bad)) << bad;
}

TEST(ScenarioCodecTest, TextThatIsNotUtf8IsLeftToTheGeneralPath)
{
    for (const char* bad : {"\xff", "\xc3", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "a\xe2\x88"}) {
        San san = defaultSan();
        san.hosts[0].nodeName = bad;
        std::string text;
        EXPECT_FALSE(codec::write(san, text)) << bad;
        EXPECT_ANY_THROW(generalScenarioToText(san));
        EXPECT_ANY_THROW(scenarioToText(san));
    }
}

// Texts a person might write: the fast reader takes them and must agree with
// the general one.
TEST(ScenarioCodecTest, AcceptsPlainHandWrittenScenarios)
{
    const char* texts[] = {
        R"({"format":"hbasim-scenario","version":1})",
        " \t\r\n{ \"version\" : 1 , \"format\" : \"hbasim-scenario\" , \"name\" : \"x\" } \n",
        R"({"format":"hbasim-scenario","version":1,"hosts":[{}],"adapters":[{"id":"0x2A"},{"id":43},{"id":"ff"}]})",
        R"({"format":"hbasim-scenario","version":1,"name":"caf\u00e9 \ud83d\ude00 \/ \b\f\n\r\t \"\\ \u0000"})",
        R"({"format":"hbasim-scenario","version":1,"hosts":[{"agentVersion":[]}],"adapters":[{"ports":[{"sfp":{"temperatureC":-0,"voltage":40,"txBiasMa":1E2,"txPowerMw":-1.5e-3,"rxPowerMw":0.0}}],"device":-1,"files":{"b":"1","a":"2"}}]})",
        R"({"format":"hbasim-scenario","version":1,"targets":[{"name":"t","ports":[1,2]}],"luns":[{"wwuln":"w","paths":[{"target":"t","lun":4294967295}]}]})",
    };
    for (const char* text : texts) {
        San fast, general;
        std::string error;
        ASSERT_TRUE(codec::read(text, fast)) << text;
        ASSERT_TRUE(generalScenarioFromText(text, "f", general, error)) << text << ": " << error;
        EXPECT_EQ(generalScenarioToText(fast), generalScenarioToText(general)) << text;
    }
    San san;
    ASSERT_TRUE(codec::read(R"({"format":"hbasim-scenario","version":1,"name":"\u0000\u001f"})", san));
    EXPECT_EQ(san.name, std::string("\0\x1f", 2));
    ASSERT_TRUE(codec::read(R"({"format":"hbasim-scenario","version":1,"hosts":[{"online":false}]})", san));
    EXPECT_EQ(san.hosts.at(0).systemName, "Linux");
    EXPECT_FALSE(san.hosts.at(0).online);
}

// Everything the fast reader declines goes to the general path, which gives
// the words it always gave, or reads it as it always did.
TEST(ScenarioCodecTest, DeclinedTextsGetTheGeneralResult)
{
    const std::string header = R"({"format":"hbasim-scenario","version":1,)";
    const std::vector<std::string> texts = {
        "",
        "{ \"format\": ",
        "[1,2]",
        "null",
        R"({"format":"hbasim-scenario","version":7})",
        R"({"format":"hbasim-scenario","version":0})",
        R"({"format":"hbasim-scenario","version":1.0})",
        R"({"format":"hbasim-scenario","version":"1"})",
        R"({"format":"hbasim-scenari","version":1})",
        R"({"format":1,"version":1})",
        R"({"version":1})",
        R"({"format":"hbasim-scenario"})",
        "\xef\xbb\xbf"
        R"({"format":"hbasim-scenario","version":1})",
        R"({"format":"hbasim-scenario","version":1} x)",
        R"({"format":"hbasim-scenario","version":1}{})",
        R"(/* c */{"format":"hbasim-scenario","version":1})",
        header + R"("hosts":[{"agent":"","nodeNmae":"x"}]})",
        header + R"("hosts":"many"})",
        header + R"("name":null})",
        header + R"("name":"a","name":"b"})",
        header + R"("n\u0061me":"x"})",
        header + R"("name":"\ud800"})",
        header + R"("name":"\udc00x"})",
        header + R"("name":"\x"})",
        header + R"("name":"\u12"})",
        header + "\"name\":\"\xff\"}",
        header + "\"name\":\"\xc3\"}",
        header + "\"name\":\"a\tb\"}",
        header + R"("name":"a)",
        header + R"("nextLocalLun":2.0})",
        header + R"("nextLocalLun":1e2})",
        header + R"("nextLocalLun":-1})",
        header + R"("nextLocalLun":01})",
        header + R"("nextLocalLun":18446744073709551616})",
        header + R"("nextLocalLun":+1})",
        header + R"("nextLocalLun":.5})",
        header + R"("nextLocalLun":1.})",
        header + R"("nextLocalLun":true})",
        header + R"("hosts":[{"hostType":4294967297}]})",
        header + R"("hosts":[{"hostType":true}]})",
        header + R"("hosts":[{"online":1}]})",
        header + R"("hosts":[{"agentVersion":[-1]}]})",
        header + R"("hosts":[{"agentVersion":{}}]})",
        header + R"("hosts":[{}],"adapters":[{"id":"xyz"}]})",
        header + R"("hosts":[{}],"adapters":[{"id":-1}]})",
        header + R"("hosts":[{}],"adapters":[{"id":"12345678901234567"}]})",
        header + R"("hosts":[{}],"adapters":[{"id":1.5}]})",
        header + R"("hosts":[{}],"adapters":[{"files":{"a":"1","a":"2"}}]})",
        header + R"("hosts":[{}],"adapters":[{"files":{"a":1}}]})",
        header + R"("hosts":[{}],"adapters":[{"ports":[{"sfp":{"voltage":1e400}}]}]})",
        header + R"("hosts":[{}],"adapters":[{"ports":[{"sfp":{"voltage":"3"}}]}]})",
        header + R"("hosts":[{}],"adapters":[{"ports":[{"sfp":null}]}]})",
        header + R"("hosts":[{}],"adapters":[{"health":[]}]})",
        header + R"("hosts":[{},]})",
        header + R"("hosts":[{}],})",
        header + R"("hosts":[{}],"adapters":[{},{}]})",
        header + R"("hosts":[{"agent":"agent.example"}]})",
        header + R"("luns":[{"wwuln":"w","paths":[{"target":"nowhere"}]}]})",
    };
    for (const std::string& text : texts) {
        San fast;
        bool validFast = codec::read(text, fast);
        std::string ignored;
        if (validFast) { // only texts that break a rule of the model get this far
            EXPECT_FALSE(validateSan(fast, ignored)) << text;
        }
        San viaEntry, general;
        std::string entryError, generalError;
        bool entry = scenarioFromText(text, "f.json", viaEntry, entryError);
        bool ok = generalScenarioFromText(text, "f.json", general, generalError);
        ASSERT_EQ(entry, ok) << text;
        if (ok)
            EXPECT_EQ(scenarioToText(viaEntry), scenarioToText(general)) << text;
        else
            EXPECT_EQ(entryError, generalError) << text;
    }
}

TEST(ScenarioCodecTest, DeclinedTextsStillGetTheirMessages)
{
    San san;
    std::string error;
    EXPECT_FALSE(scenarioFromText(R"({"format":"hbasim-scenario","version":1,"hosts":[{"agent":"","nodeNmae":"x"}]})",
                                  "f", san, error));
    EXPECT_EQ(error, "f: unknown field \"/hosts/0/nodeNmae\"");
    EXPECT_FALSE(scenarioFromText(R"({"format":"hbasim-scenario","version":1,"hosts":[{}],"adapters":[{},{}]})", "f",
                                  san, error));
    EXPECT_EQ(error, "f: adapter 0 is defined twice");
    // Accepted by the general path as always, though not by the fast one.
    ASSERT_TRUE(scenarioFromText(R"({"format":"hbasim-scenario","version":1,"nextLocalLun":2.0})", "f", san, error));
    EXPECT_EQ(san.nextLocalLun, 2u);
}

// Damaged state files, made by cutting, inserting and overwriting bytes at
// random (with a fixed seed) in real scenarios: whatever the fast reader
// accepts must read exactly as the general path reads it, and whatever it
// declines must still get the general path's verdict and message.
TEST(ScenarioCodecTest, DamagedTextsGetTheGeneralVerdict)
{
    const std::string pieces[] = {"{",    "}",    "[",       "]",    ",",    ":", "\"",       "\\",
                                  "0",    "-",    "1e9",     "true", "null", " ", "\"name\"", "\"files\":{}",
                                  "\xc3", "\xff", "\\u00e9", "2.5"};
    std::mt19937 random(20261122);
    int accepted = 0;
    for (const San& san : {defaultSan(), generateSan(2, 6, 2), perturbed(2, 3)}) {
        const std::string original = generalScenarioToText(san);
        for (int round = 0; round < 150; ++round) {
            std::string text = original;
            for (int cut = 1 + static_cast<int>(random() % 3); cut > 0; --cut) {
                size_t at = random() % text.size();
                switch (random() % 3) {
                case 0:
                    text.erase(at, 1 + random() % 8);
                    break;
                case 1:
                    text.insert(at, pieces[random() % std::size(pieces)]);
                    break;
                default:
                    text[at] = static_cast<char>(random() % 256);
                    break;
                }
            }
            San fast, general;
            std::string fastError, generalError;
            const bool fastRead = scenarioFromText(text, "f", fast, fastError);
            const bool generalRead = generalScenarioFromText(text, "f", general, generalError);
            ASSERT_EQ(fastRead, generalRead) << text;
            if (fastRead) {
                ++accepted;
                EXPECT_EQ(generalScenarioToText(fast), generalScenarioToText(general)) << text;
            } else {
                EXPECT_EQ(fastError, generalError) << text;
            }
        }
    }
    // Some damage (a blank, a changed digit) leaves a valid scenario.
    EXPECT_GT(accepted, 0);
}
