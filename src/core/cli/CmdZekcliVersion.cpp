#include "core/cli/CmdZekcliVersion.h"

#include <cstdio>

#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "core/ZekcliReturn.h"
#include "records/KLibraryVersionInfo.h"
#include "records/PIpAddress.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_VERSION, CmdItem::ITEM_CLI, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

// The library generation this client was built for.
bool isExpectedLibrary(KLibraryVersionInfo const& version)
{
    return version.versionMajor == 2 && version.versionMinor == 103 && version.versionPatch == 6 &&
        version.versionBuild == 4;
}

// Agents are told apart by all but their first number.
bool differsFromAgent(KLibraryVersionInfo const& local, KLibraryVersionInfo const& remote)
{
    return local.versionMinor != remote.versionMinor || local.versionPatch != remote.versionPatch ||
        local.versionBuild != remote.versionBuild;
}

std::string remoteAgentText(int code, bool agentGiven, std::string const& address, KLibraryVersionInfo const& local,
                            KLibraryVersionInfo const& remote)
{
    std::string const agentFound = "\n    rmtagent_zek agent found on " + address;
    switch (code) {
    case MHBA_E_NO_ADAPTER_FOUND:
        return "\n    (No ZEK found on local host)\n";
    case MHBA_E_AGENT_NOT_RESPONDING:
        return "\n    rmtagent_zek agent not found on \n" + address + "\n";
    case MHBA_E_AGENT_HAS_NO_ADAPTER:
        if (!agentGiven)
            return "(No ZEK device found on local host)";
        return agentFound +
            (differsFromAgent(local, remote) ? ", (Version " + remote.displayText() + ")" : std::string()) +
            ", (No ZEK device found on remote host)";
    case MHBA_S_OK:
        if (!agentGiven)
            return std::string();
        return agentFound + (differsFromAgent(local, remote) ? ", Version " + remote.displayText() : std::string());
    default:
        return std::string();
    }
}

} // namespace

CmdZekcliVersion::CmdZekcliVersion()
{
    declareCommand(*this, rows);
    helpTitle = "CLI Version";
    helpDescription = "Shows the version of the CLI and, when it differs from what this CLI was built for, the "
                      "version of the HBA management library in use. With -agent it also reports whether the "
                      "remote agent rmtagent_zek answers on that host, and its version when it differs. With "
                      "-name it prints the bare version text, for use in scripts.";
    helpSyntax = "\t[-name]";
    helpModifiers = "-name\n"
                    "\tPrints only the version text, with no line feed after it.\n";
    helpExamples =
        ugCommandPrompt() + "\n" + ugCommandPrompt() + "-name\n" + ugCommandPrompt() + "-agent=192.168.1.20\n";
    helpResultFile = "";
    helpNotes = "";
}

int CmdZekcliVersion::execCommand(std::string& err)
{
    TokenModifierString const* const name = findModifier(ModifierId::MODIFIER_NAME, err);
    if (!name)
        return ZEKCLI_PARSE_FAIL;
    KLibraryVersionInfo library;
    g_pHbaMgmtApi->getLibraryVersionInfo(library);
    std::string const version = library.displayText() + ".0.0";
    if (!name->isDefault) {
        printf("%s", version.c_str());
        return ZEKCLI_OK;
    }

    std::string text = "\nHost Command Line Interface (CLI)\nVersion " + version;
    if (!isExpectedLibrary(library))
        text += ", (Using HBA API library version " + library.displayText() + ")";

    PIpAddress agent;
    bool agentGiven = false;
    if (!getIpAddressFromCommandLineModifierIfFound(ModifierId::MODIFIER_AGENT, agent, agentGiven, err))
        return ZEKCLI_PARSE_FAIL;
    bool agentFound = false;
    KLibraryVersionInfo remote;
    int const code = g_pHbaMgmtApi->getRemoteAgentVersion(agent, &agentFound, remote);
    text += remoteAgentText(code, agentGiven, agent.displayText(), library, remote) + "\n\n";

    return outDisplay(text, err) ? ZEKCLI_OK : ZEKCLI_OUTPUT_FAIL;
}
