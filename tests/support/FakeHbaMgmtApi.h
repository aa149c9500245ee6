// A stand-in management library for the command-line core's unit tests: it
// answers the few calls the core makes with values a test sets, and fails
// every device operation.
#pragma once

#include <string>

#include "api/HbaMgmtLoader.h"
#include "records/KLibraryVersionInfo.h"
#include "records/PIpAddress.h"
#include "support/FailingHbaMgmtApi.h"

class FakeHbaMgmtApi : public fixture::FailingHbaMgmtApi {
public:
    FakeHbaMgmtApi() : FailingHbaMgmtApi(2, 103, 6, 4) {}

    unsigned int version[4] = {2, 103, 6, 4};
    unsigned int remoteVersion[4] = {2, 103, 6, 4};
    e_MHBA_RETURN remoteAgentCode = MHBA_S_OK;
    e_MHBA_RETURN agentConnectionCode = MHBA_S_OK;
    e_MHBA_RETURN demonstrationCode = MHBA_S_OK;
    std::string demonstrationFileLoaded;
    int agentTests = 0;

    e_MHBA_RETURN getLibraryVersionInfo(KLibraryVersionInfo& out) override
    {
        fill(out, version);
        return MHBA_S_OK;
    }
    e_MHBA_RETURN getRemoteAgentVersion(PIpAddress&, bool* agentFound, KLibraryVersionInfo& out) override
    {
        *agentFound = remoteAgentCode != MHBA_E_AGENT_NOT_RESPONDING;
        fill(out, remoteVersion);
        return remoteAgentCode;
    }
    std::string returnCodeToText(int code) override { return "API text of " + std::to_string(code); }
    // Numeric dotted texts are taken as they stand; anything else is refused.
    bool textToIpAddress(const std::string& text, PIpAddress& out, std::string& error) override
    {
        if (text.empty() || text.find_first_not_of("0123456789.") != std::string::npos) {
            error = "\"" + text + "\" is not an address";
            return false;
        }
        out.setType(PIpAddress::IPV_SHORT_1);
        out.setNumericText(text.c_str(), "");
        return true;
    }
    e_MHBA_RETURN testAgentConnection(PIpAddress&, std::string& error) override
    {
        ++agentTests;
        if (agentConnectionCode != MHBA_S_OK)
            error = "agent does not answer";
        return agentConnectionCode;
    }
    e_MHBA_RETURN loadDemonstrationFile(const std::string& file, std::string&) override
    {
        demonstrationFileLoaded = file;
        return demonstrationCode;
    }

private:
    static void fill(KLibraryVersionInfo& out, unsigned int const (&numbers)[4])
    {
        out.versionMajor = numbers[0];
        out.versionMinor = numbers[1];
        out.versionPatch = numbers[2];
        out.versionBuild = numbers[3];
    }
};

// Installs a fake as the process's API object for the life of a test.
class ScopedFakeApi {
public:
    ScopedFakeApi() : previous(g_pHbaMgmtApi) { g_pHbaMgmtApi = &api; }
    ~ScopedFakeApi() { g_pHbaMgmtApi = previous; }
    ScopedFakeApi(ScopedFakeApi const&) = delete;
    ScopedFakeApi& operator=(ScopedFakeApi const&) = delete;
    FakeHbaMgmtApi api;

private:
    HbaMgmtApi* previous;
};
