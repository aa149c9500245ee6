// What the addressing tests share: a command that declares every keyword the
// addressing operations read, and the simulated SAN loaded through the real
// loader from a small scenario file of src/addressing/testdata.
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "core/TokenInitializer.h"
#include "records/KIsaAdapterPath.h"
#include "support/TempDirectory.h"

namespace addressing_test {

using Row = TokenInitializer::TOKEN_INITIALIZER;

constexpr int kKey = Token::TOKEN_TYPE_MODIFIER;
constexpr int kOpt = TokenModifier::OPTIONAL;
constexpr int kReq = TokenModifier::REQUIRED;
constexpr int kVal = TokenModifier::VALUE_REQUIRED;

#define ADDRESSING_TEST_KEY(id)                                                                                        \
    {                                                                                                                  \
        2, kKey, "", "", ModifierId::id, kOpt, kVal                                                                    \
    }

// Every keyword that the addressing operations look up, all optional.
inline Row const kAllKeywords[] = {
    {1, Token::TOKEN_TYPE_CMD, "", "", CmdAction::ACTION_SHOW, CmdItem::ITEM_LUN, 1},
    ADDRESSING_TEST_KEY(MODIFIER_ZEK),
    ADDRESSING_TEST_KEY(MODIFIER_AGENT),
    ADDRESSING_TEST_KEY(MODIFIER_LUN_WWULN),
    ADDRESSING_TEST_KEY(MODIFIER_LUN_ANY_WWULN),
    ADDRESSING_TEST_KEY(MODIFIER_LUN_SERIAL),
    ADDRESSING_TEST_KEY(MODIFIER_LUN_NUMBER),
    ADDRESSING_TEST_KEY(MODIFIER_VPGINDEX),
    ADDRESSING_TEST_KEY(MODIFIER_FC_TARGET),
    ADDRESSING_TEST_KEY(MODIFIER_IS_TARGET),
    ADDRESSING_TEST_KEY(MODIFIER_DMDEST_LUN_WWULN),
    ADDRESSING_TEST_KEY(MODIFIER_DMDEST_LUN_ANY_WWULN),
    ADDRESSING_TEST_KEY(MODIFIER_DMDEST_LUN_SERIAL),
    ADDRESSING_TEST_KEY(MODIFIER_DMDEST_LUN_NUMBER),
    ADDRESSING_TEST_KEY(MODIFIER_DMDEST_VPGINDEX),
    ADDRESSING_TEST_KEY(MODIFIER_DMDEST_FC_TARGET),
    ADDRESSING_TEST_KEY(MODIFIER_DMDEST_IS_TARGET),
    ADDRESSING_TEST_KEY(MODIFIER_FC_DEVICE),
    ADDRESSING_TEST_KEY(MODIFIER_IS_DEVICE),
    ADDRESSING_TEST_KEY(MODIFIER_FC_INITIATOR),
    ADDRESSING_TEST_KEY(MODIFIER_IS_INITIATOR),
    ADDRESSING_TEST_KEY(MODIFIER_CLUSTERID),
    ADDRESSING_TEST_KEY(MODIFIER_DRIVE),
    ADDRESSING_TEST_KEY(MODIFIER_TIME),
    ADDRESSING_TEST_KEY(MODIFIER_SIZE),
    ADDRESSING_TEST_KEY(MODIFIER_CACHE),
    ADDRESSING_TEST_KEY(MODIFIER_MAX_READ),
    ADDRESSING_TEST_KEY(MODIFIER_SECONDARY),
    {0, 0, "", "", 0, 0, 0},
};

#undef ADDRESSING_TEST_KEY

// A command declared by rows as real commands are, with helpers to put
// values on its keywords as the parser would.
class TestCommand : public TokenCmd {
public:
    explicit TestCommand(Row const* rows = kAllKeywords)
    {
        init(TokenInitializer(rows[0]));
        initModifiers(rows + 1);
    }
    TokenModifierString& keyword(ModifierId::MODIFIER_ID id)
    {
        std::string err;
        TokenModifierString* const found = findModifier(id, err);
        EXPECT_NE(nullptr, found) << err;
        return *found;
    }
    // As if typed on the command line.
    void give(ModifierId::MODIFIER_ID id, std::string const& value) { keyword(id).setValue(value); }
    // As if remembered from an earlier run: a value, but not given.
    void remember(ModifierId::MODIFIER_ID id, std::string const& value)
    {
        keyword(id).value = value;
        keyword(id).isDefault = true;
    }
};

inline std::string readFile(std::filesystem::path const& path)
{
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Loads the simulator with a scenario file for the life
// of a test. `faults` replaces the scenario's empty fault list, so one file
// can serve a test that needs an adapter to misbehave.
class SimulatedSan {
public:
    explicit SimulatedSan(std::string const& scenario, std::string const& faults = "[]")
    {
        std::filesystem::path const source = scenarioPath(scenario);
        std::string text = readFile(source);
        std::string const emptyFaults = "\"faults\": []";
        size_t const at = text.find(emptyFaults);
        if (at != std::string::npos)
            text.replace(at, emptyFaults.size(), "\"faults\": " + faults);
        std::ofstream(statePath) << text;

        std::string const library = std::string(ZEK_TEST_BIN_DIR) + "/libhbaclient.so";
        loaded = !text.empty() && std::filesystem::exists(library);
        if (!loaded)
            return;
        std::string directory = ZEK_TEST_BIN_DIR;
        setInstallDirectory(directory.data());
        InitializeHbaMgmtAPI();
        loaded = g_pHbaMgmtApi != nullptr;
        if (loaded)
            g_pHbaMgmtApi->beginClientSession();
    }
    ~SimulatedSan()
    {
        if (loaded && g_pHbaMgmtApi) {
            g_pHbaMgmtApi->endClientSession();
            ReleaseHbaMgmtAPI();
        }
    }
    SimulatedSan(SimulatedSan const&) = delete;
    SimulatedSan& operator=(SimulatedSan const&) = delete;

    // The adapter known to the library with this identifier, or null.
    HIsaAdapter* adapter(unsigned long long id) const
    {
        for (HIsaAdapter* known : g_pHbaMgmtApi->getAdapters()->items)
            if (known->getAdapterPath()->isaHbaId() == id)
                return known;
        return nullptr;
    }

    // A plain name is a scenario of src/addressing/testdata; a name with a
    // directory is a file of the source tree.
    static std::filesystem::path scenarioPath(std::string const& scenario)
    {
        std::filesystem::path const sources(ZEK_TEST_SOURCE_DIR);
        if (scenario.find('/') != std::string::npos)
            return sources / scenario;
        return sources / "src/addressing/testdata" / (scenario + ".json");
    }

    // Other tests of the same program may rely on the variables as they
    // were; the state's directory, lock file included, goes with the object.
    TempDirectory scratch{"zek-addressing"};
    std::filesystem::path statePath = scratch.file("san.json");

private:
    ScopedEnvironmentVariable stateVariable{"HBASIM_STATE", statePath.string()};
    ScopedEnvironmentVariable timeVariable{"HBASIM_TIME", "1700000000"};

public:
    bool loaded = false;
};

// Passes every call on to the loaded library and counts the ones whose
// number the tests care about.
class CountingApi : public HbaMgmtApi {
public:
    explicit CountingApi(HbaMgmtApi* library) : inner(library), previous(g_pHbaMgmtApi) { g_pHbaMgmtApi = this; }
    ~CountingApi() override { g_pHbaMgmtApi = previous; }
    CountingApi(CountingApi const&) = delete;
    CountingApi& operator=(CountingApi const&) = delete;

    void uninitialize() override { inner->uninitialize(); }
    int64_t initialize(HbaMgmtApi* self) override { return inner->initialize(self); }
    e_MHBA_RETURN getLibraryVersionInfo(KLibraryVersionInfo& out) override { return inner->getLibraryVersionInfo(out); }
    e_MHBA_RETURN getRemoteAgentVersion(PIpAddress& agent, bool* found, KLibraryVersionInfo& out) override
    {
        return inner->getRemoteAgentVersion(agent, found, out);
    }
    void registerMsgHandler(HMsgHandler* handler) override { inner->registerMsgHandler(handler); }
    void unregisterMsgHandler(HMsgHandler* handler) override { inner->unregisterMsgHandler(handler); }
    void beginClientSession() override { inner->beginClientSession(); }
    void endClientSession() override { inner->endClientSession(); }
    std::string returnCodeToText(int code) override { return inner->returnCodeToText(code); }
    bool isFailure(int code) override { return inner->isFailure(code); }
    bool textToIpAddress(const std::string& text, PIpAddress& out, std::string& error) override
    {
        return inner->textToIpAddress(text, out, error);
    }
    e_MHBA_RETURN testAgentConnection(PIpAddress& agent, std::string& error) override
    {
        return inner->testAgentConnection(agent, error);
    }
    e_MHBA_RETURN saveDemonstrationFile(const std::string& file, std::string& error) override
    {
        return inner->saveDemonstrationFile(file, error);
    }
    e_MHBA_RETURN loadDemonstrationFile(const std::string& file, std::string& error) override
    {
        return inner->loadDemonstrationFile(file, error);
    }
    HIsaAdapterCollection* getAdapters() override { return inner->getAdapters(); }
    void clearAdapters() override { inner->clearAdapters(); }
    HClusterCollection* getClusters() override { return inner->getClusters(); }
    void clearClusters() override { inner->clearClusters(); }
    HAdapterGroupLunCollection* getAdapterGroupLuns() override { return inner->getAdapterGroupLuns(); }
    void clearAdapterGroupLuns() override { inner->clearAdapterGroupLuns(); }
    e_MHBA_RETURN scanAdapterGroupLuns(const std::vector<KIsaAdapterPath>& scope, std::string& error) override
    {
        return inner->scanAdapterGroupLuns(scope, error);
    }
    e_MHBA_RETURN checkAdapterPath(KIsaAdapterPath& path) override
    {
        ++checks;
        return inner->checkAdapterPath(path);
    }
    e_MHBA_RETURN scanAdapters(PIpAddress& agent, uint32_t* count) override
    {
        ++scans;
        return inner->scanAdapters(agent, count);
    }
    e_MHBA_RETURN scanFromAdapter(const KIsaAdapterPath& path, uint32_t* count) override
    {
        return inner->scanFromAdapter(path, count);
    }
    e_MHBA_RETURN registerAenCallback(AenCallback callback) override { return inner->registerAenCallback(callback); }
    void unregisterAenCallback(AenCallback callback) override { inner->unregisterAenCallback(callback); }
    e_MHBA_RETURN pollAenEvents() override { return inner->pollAenEvents(); }

    int checks = 0;
    int scans = 0;

private:
    HbaMgmtApi* inner;
    HbaMgmtApi* previous;
};

} // namespace addressing_test

// Each test of the simulated SAN starts with this: a library that did not
// load is a failure, never a silent pass.
#define ADDRESSING_REQUIRE_SIMULATOR(san)                                                                              \
    ASSERT_TRUE((san).loaded) << "libhbaclient.so in " ZEK_TEST_BIN_DIR " did not load the scenario"
