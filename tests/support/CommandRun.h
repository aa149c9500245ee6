// Runs one real command as the frame would after parsing: in a command tree
// with the common keywords, quiet, its text sent to a text file and its
// result record to a result file, both read back for the test. Used with a
// simulated SAN (AddressingFixture.h) to test commands end to end in one
// process.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/TokenCmd.h"
#include "core/TokenRoot.h"
#include "records/RecordImage.h"
#include "support/AddressingFixture.h"
#include "support/FakeHbaMgmtApi.h"
#include "support/TempDirectory.h"

class CommandRun {
public:
    // The tree takes the command over.
    explicit CommandRun(TokenCmd* command) : cmd(command)
    {
        root.addCommonModifiersForAllCommands(parseTreeCommonModifierInit);
        root.addChild(command);
        root.quiet = true;
        root.textFileEnabled = true;
        root.textFileName = scratch.file("text.log");
        root.resultFileEnabled = true;
        root.resultFileName = scratch.file("result.dat");
    }

    // Puts a value on a keyword of the command, or on a common one, as if it
    // had been typed; a flag is given with an empty value.
    void give(ModifierId::MODIFIER_ID id, std::string const& value = std::string())
    {
        std::string err;
        TokenModifierString* keyword = cmd->findModifier(id, err);
        ASSERT_NE(nullptr, keyword) << err;
        keyword->setValue(value);
    }
    void giveAdapter(std::string const& zek) { give(ModifierId::MODIFIER_ZEK, zek); }

    // Runs the command once; the text, the result record and `err` are those
    // of this run alone.
    int run()
    {
        std::filesystem::remove(root.textFileName);
        std::filesystem::remove(root.resultFileName);
        err.clear();
        int const rc = cmd->execCommand(err);
        text = readAll(root.textFileName);
        result = readAll(root.resultFileName);
        return rc;
    }

    bool wroteResult() const { return result.size() >= kStatusAt + 4; }
    // The status that the result record carries.
    uint32_t resultStatus() const { return int32At(result, kStatusAt); }
    // The payload of the result record; empty when it has none.
    std::string payload() const
    {
        if (result.size() < kPayloadAt + 4)
            return std::string();
        uint32_t const size = int32At(result, kSizeAt);
        if (size < 4 || result.size() < kPayloadAt + size - 4)
            return std::string();
        return result.substr(kPayloadAt, size - 4);
    }

    static uint32_t int32At(std::string const& bytes, size_t at)
    {
        uint32_t value = 0;
        if (at + sizeof value <= bytes.size())
            std::memcpy(&value, bytes.data() + at, sizeof value);
        return value;
    }

    TokenCmd* cmd;
    std::string err;
    std::string text;
    std::string result;

private:
    // A result record: a 32-byte header, the status, the payload's size
    // field (its size plus 4) and the payload.
    static constexpr size_t kStatusAt = 32;
    static constexpr size_t kSizeAt = 36;
    static constexpr size_t kPayloadAt = 40;

    static std::string readAll(std::string const& path)
    {
        std::ifstream in(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

    TempDirectory scratch{"zek-command-run"};
    TokenRoot root;
};

// A counted payload read back: its count and the images behind their sizes.
struct CountedPayload {
    uint32_t headerSize = 0;
    uint32_t count = 0;
    std::vector<uint32_t> entrySizes;
    std::vector<std::string> images;
    bool whole = false; // every entry lies inside the payload, nothing follows

    explicit CountedPayload(std::string const& bytes)
    {
        headerSize = CommandRun::int32At(bytes, 0);
        count = CommandRun::int32At(bytes, 4);
        size_t at = 8;
        for (uint32_t i = 0; i < count && at + 4 <= bytes.size(); ++i) {
            uint32_t const size = CommandRun::int32At(bytes, at);
            if (size < 4 || at + size > bytes.size())
                return;
            entrySizes.push_back(size);
            images.push_back(bytes.substr(at + 4, size - 4));
            at += size;
        }
        whole = bytes.size() >= 8 && images.size() == count && at == bytes.size();
    }
};

// The record whose image a payload carries, usable again: the image's bytes
// over a fresh record, except where the fresh record holds its code
// addresses, which an image carries as zeros.
template <typename Record>
Record recordOfImage(std::string const& image)
{
    Record record;
    std::vector<unsigned char> const cleared = recordImage(record);
    auto* const raw = reinterpret_cast<unsigned char*>(static_cast<void*>(&record));
    EXPECT_LE(image.size(), sizeof(Record));
    size_t const length = std::min(image.size(), sizeof(Record));
    for (size_t at = 0; at < length; ++at)
        if (cleared[at] == raw[at])
            raw[at] = static_cast<unsigned char>(image[at]);
    return record;
}

// Tests that run commands on one adapter of a scenario of the simulated SAN,
// loaded afresh for each test, by default without faults.
class CommandsOnSimulatedSan : public ::testing::Test {
protected:
    using Keywords = std::initializer_list<std::pair<ModifierId::MODIFIER_ID, char const*>>;

    CommandsOnSimulatedSan(std::string scenarioFile, std::string zek)
        : scenario(std::move(scenarioFile)), adapter(std::move(zek))
    {}
    void SetUp() override { load("[]"); }
    // The simulated SAN, for a test that works on the library's objects.
    addressing_test::SimulatedSan const& simulated() const { return *san; }
    // Starts again from the scenario with these faults.
    void load(std::string const& faults)
    {
        san.reset();
        san = std::make_unique<addressing_test::SimulatedSan>(scenario, faults);
        ADDRESSING_REQUIRE_SIMULATOR(*san);
    }

    // Runs a command on the adapter with these keywords, expecting `code`.
    template <typename Command>
    std::unique_ptr<CommandRun> ran(Keywords keywords, int code = 0)
    {
        auto run = std::make_unique<CommandRun>(new Command);
        run->giveAdapter(adapter);
        for (auto const& [keyword, value] : keywords)
            run->give(keyword, value);
        EXPECT_EQ(code, run->run()) << run->err;
        return run;
    }

    // The counted result of a run: whole, with `count` entries of one size.
    static CountedPayload counted(CommandRun const& run, uint32_t count, uint32_t entrySize)
    {
        CountedPayload payload(run.payload());
        EXPECT_TRUE(payload.whole);
        EXPECT_EQ(8u, payload.headerSize);
        EXPECT_EQ(count, payload.count);
        for (uint32_t size : payload.entrySizes)
            EXPECT_EQ(entrySize, size);
        return payload;
    }

private:
    std::string scenario;
    std::string adapter;
    std::unique_ptr<addressing_test::SimulatedSan> san;
};

// A library that accepts every adapter path but holds no adapter.
class AdapterNotHeldApi : public FakeHbaMgmtApi {
public:
    e_MHBA_RETURN checkAdapterPath(KIsaAdapterPath&) override { return MHBA_S_OK; }
};

// Runs each command with -zek=0 against that library: each must be refused
// with 1004 and write neither text nor a result record. The runs take the
// commands over.
inline void expectAdapterNotFoundByEach(std::vector<TokenCmd*> const& commands)
{
    AdapterNotHeldApi api;
    HbaMgmtApi* const previous = g_pHbaMgmtApi;
    g_pHbaMgmtApi = &api;
    for (TokenCmd* command : commands) {
        CommandRun run(command);
        run.giveAdapter("0");
        EXPECT_EQ(1004, run.run()) << command->ugCommandLowCase();
        EXPECT_EQ("", run.text);
        EXPECT_FALSE(run.wroteResult());
    }
    g_pHbaMgmtApi = previous;
}
