// hbasim: creates, inspects and changes the simulated SAN that
// libhbaclient.so serves to the command line.
#include "Summary.h"

#include "model/AdapterLog.h"
#include "model/DefaultSan.h"
#include "model/Generate.h"
#include "model/Rules.h"
#include "model/Scenario.h"
#include "model/View.h"
#include "state/Clock.h"
#include "state/StateStore.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <vector>

using namespace sim;

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kBadArguments = 2;

const char* const kUsage =
    "Usage: hbasim [--state FILE] COMMAND [ARGUMENTS]\n"
    "\n"
    "Creates, inspects and changes the simulated SAN behind libhbaclient.so.\n"
    "The state file is --state FILE, else $HBASIM_STATE, else $HOME/.hbasim/san.json.\n"
    "\n"
    "Commands:\n"
    "  reset [SCENARIO]          start again from the default SAN or from a scenario file\n"
    "  show                      print a readable summary of the SAN\n"
    "  export [FILE]             write the SAN as a scenario (to standard output without FILE)\n"
    "  check SCENARIO            check a scenario file without using it\n"
    "  fault ADAPTER OPERATION CODE [--always]\n"
    "                            make OPERATION on ADAPTER answer CODE, once (default) or always\n"
    "  partial ADAPTER OPERATION FIRST_ERROR [--always]\n"
    "                            make a gathering OPERATION succeed only partly, FIRST_ERROR first\n"
    "  faults                    list the injected faults\n"
    "  clear-faults [ADAPTER]    remove the injected faults, of one adapter or all\n"
    "  offline adapter ADAPTER | port ADAPTER PORT | lun WWULN | agent ADDRESS\n"
    "  online adapter ADAPTER | port ADAPTER PORT | lun WWULN | agent ADDRESS\n"
    "                            take an object offline or bring it back\n"
    "  generate ADAPTERS LUN_PATHS [--targets N] [--drives N] [--cached N] [--output FILE] [--log N]\n"
    "                            make a large synthetic SAN, into the state unless --output is given;\n"
    "                            --cached caches the first N LUNs on the first adapter;\n"
    "                            --log gives every adapter a log of N records (default 20)\n"
    "  log ADAPTER append SEVERITY SOURCE MESSAGE [--count N]\n"
    "                            add a record (N records) to the adapter's event log, which keeps\n"
    "                            the newest 2000; SEVERITY is a word (fatal, error, warning, trace,\n"
    "                            info, debug, system, unknown) or a number\n"
    "  help                      show this text\n"
    "\n"
    "ADAPTER is an adapter identifier in hexadecimal or a symbolic name; OPERATION is the\n"
    "name of a library operation (for example enableCache, getTargetsAndInitiators) or *.\n"
    "Exit status: 0 done, 1 the state or a file could not be used, 2 bad arguments.\n";

const std::set<std::string> kOperations = {
    "*",
    "addClusterMember",
    "addDriveToPool",
    "addDriveToPoolBySsdId",
    "clearAdapterStatistics",
    "clearLog",
    "clearLunStatistics",
    "clearReservation",
    "createCluster",
    "createLun",
    "destroyCluster",
    "disableCache",
    "disableCacheByWwuln",
    "enableCache",
    "executeNvdimmCommand",
    "factoryReset",
    "getAdapterHealth",
    "getAdapterInfo",
    "getAdapterStatistics",
    "getCacheFlushProgress",
    "getCacheStatistics",
    "getDrivesWithErrorDetails",
    "getFcInfo",
    "getFile",
    "getLogViewFromFile",
    "getLunIoStatistics",
    "getLunsForSpecificTarget",
    "getMemoryInfo",
    "getNvdimmInfo",
    "getPoolInfo",
    "getReservations",
    "getSfpInfo",
    "getSmartDriveInfo",
    "getStatistics",
    "getSystemCapture",
    "scanFromAdapter",
    "getTargetsAndInitiators",
    "installFirmware",
    "invalidateCache",
    "loadLog",
    "lockCache",
    "modifyCache",
    "modifyLun",
    "putFile",
    "refreshLunInfo",
    "removeClusterMember",
    "removeDriveFromPool",
    "removeDriveFromPoolBySsdId",
    "removeLun",
    "removePool",
    "restart",
    "restoreDriveConfig",
    "restoreFruFile",
    "saveCacheDump",
    "saveCaptureFile",
    "saveFruFile",
    "saveLogFile",
    "scanAll",
    "scanTarget",
    "setBeacon",
    "setFcInfo",
    "setFcPortEnabled",
    "setLunMirror",
    "setPassword",
    "setPoolSize",
    "setSymbolicName",
    "setTargetMaxOutstandingIo",
    "startCacheFlush",
    "unlockCache",
    "updateFirmware",
};

int badArguments(const std::string& text)
{
    std::fprintf(stderr, "hbasim: %s\nTry \"hbasim help\".\n", text.c_str());
    return kBadArguments;
}

int failed(const std::string& text)
{
    std::fprintf(stderr, "hbasim: %s\n", text.c_str());
    return kFailed;
}

bool wholeNumber(const std::string& text, long long low, long long high, long long& out)
{
    if (text.empty())
        return false;
    char* end = nullptr;
    long long value = std::strtoll(text.c_str(), &end, 10);
    if (*end != '\0' || value < low || value > high)
        return false;
    out = value;
    return true;
}

Adapter* adapterNamed(San& san, const std::string& name)
{
    for (Adapter& a : san.adapters)
        if (a.symbolicName == name)
            return &a;
    u64 id;
    return parseAdapterId(name, id) ? findAdapter(san, id) : nullptr;
}

bool readScenario(const std::string& file, San& san, std::string& error)
{
    std::string text;
    return readTextFile(file, text, error) && scenarioFromText(text, file, san, error);
}

// A change made under the state lock; the change reports its own argument
// errors through `problem` and then leaves the state as it was.
int changeState(StateStore& store, const std::function<bool(San&, std::string&)>& change)
{
    std::string problem, error;
    bool wrote = store.update([&](San& san) { return change(san, problem); }, error);
    if (!wrote)
        return failed(error);
    return problem.empty() ? kDone : badArguments(problem);
}

int reset(StateStore& store, const std::vector<std::string>& args)
{
    if (args.size() > 1)
        return badArguments("reset takes at most one scenario file");
    San san;
    std::string error;
    if (args.empty())
        san = defaultSan();
    else if (!readScenario(args[0], san, error))
        return failed(error);
    if (!store.replace(san, error))
        return failed(error);
    std::printf("State reset to %s in %s\n", args.empty() ? "the default SAN" : ("\"" + args[0] + "\"").c_str(),
                store.path().c_str());
    return kDone;
}

// The SAN as the management library would present it now: flushes, purges
// and restarts whose time has come are over, though the file may not have
// been written since.
bool readSettled(StateStore& store, San& san, std::string& error)
{
    if (!store.read(san, error))
        return false;
    rules::settle(san, simNow());
    return true;
}

int show(StateStore& store, const std::vector<std::string>& args)
{
    if (!args.empty())
        return badArguments("show takes no arguments");
    San san;
    std::string error;
    if (!readSettled(store, san, error))
        return failed(error);
    std::fputs(sanSummary(san, simNow()).c_str(), stdout);
    return kDone;
}

int exportState(StateStore& store, const std::vector<std::string>& args)
{
    if (args.size() > 1)
        return badArguments("export takes at most one output file");
    San san;
    std::string error;
    if (!readSettled(store, san, error))
        return failed(error);
    if (args.empty()) {
        std::fputs(scenarioToText(san).c_str(), stdout);
        return kDone;
    }
    return writeTextFileAtomically(args[0], scenarioToText(san), error) ? kDone : failed(error);
}

int check(const std::vector<std::string>& args)
{
    if (args.size() != 1)
        return badArguments("check takes one scenario file");
    San san;
    std::string error;
    if (!readScenario(args[0], san, error))
        return failed(error);
    std::printf("%s: a valid scenario with %zu adapters and %zu LUNs\n", args[0].c_str(), san.adapters.size(),
                san.luns.size());
    return kDone;
}

int addFault(StateStore& store, std::vector<std::string> args, bool partial)
{
    bool always = false;
    if (!args.empty() && args.back() == "--always") {
        always = true;
        args.pop_back();
    }
    const char* what = partial ? "partial" : "fault";
    if (args.size() != 3)
        return badArguments(std::string(what) + " takes ADAPTER OPERATION " + (partial ? "FIRST_ERROR" : "CODE") +
                            " [--always]");
    if (!kOperations.count(args[1]))
        return badArguments("unknown operation \"" + args[1] + "\"");
    long long codeValue;
    if (!wholeNumber(args[2], 1, 2147483647, codeValue))
        return badArguments("\"" + args[2] + "\" is not a positive whole number");
    return changeState(store, [&](San& san, std::string& problem) {
        Adapter* a = adapterNamed(san, args[0]);
        if (!a) {
            problem = "no adapter \"" + args[0] + "\" in the SAN";
            return false;
        }
        Fault f;
        f.adapter = a->id;
        f.operation = args[1];
        f.code = partial ? 2 : static_cast<int>(codeValue);
        f.firstError = partial ? static_cast<int>(codeValue) : 0;
        f.once = !always;
        san.faults.push_back(f);
        return true;
    });
}

int listFaults(StateStore& store, const std::vector<std::string>& args)
{
    if (!args.empty())
        return badArguments("faults takes no arguments");
    San san;
    std::string error;
    if (!store.read(san, error))
        return failed(error);
    San only;
    only.faults = san.faults;
    std::string text = sanSummary(only, simNow());
    std::fputs(text.substr(text.find("Faults:\n")).c_str(), stdout);
    return kDone;
}

int clearFaults(StateStore& store, const std::vector<std::string>& args)
{
    if (args.size() > 1)
        return badArguments("clear-faults takes at most one adapter");
    return changeState(store, [&](San& san, std::string& problem) {
        if (args.empty()) {
            san.faults.clear();
            return true;
        }
        Adapter* a = adapterNamed(san, args[0]);
        if (!a) {
            problem = "no adapter \"" + args[0] + "\" in the SAN";
            return false;
        }
        std::erase_if(san.faults, [&](const Fault& f) { return f.adapter == a->id; });
        return true;
    });
}

bool setAdapterOnline(San& san, const std::vector<std::string>& args, bool online, std::string& problem)
{
    Adapter* a = adapterNamed(san, args[1]);
    if (!a) {
        problem = "no adapter \"" + args[1] + "\" in the SAN";
        return false;
    }
    if (args[0] == "adapter") {
        a->state = online ? AdapterOnline : AdapterOffline;
        return true;
    }
    long long port;
    if (args.size() != 3 || !wholeNumber(args[2], 1, static_cast<long long>(a->ports.size()), port)) {
        problem = "port takes ADAPTER PORT, with PORT from 1 to " + std::to_string(a->ports.size());
        return false;
    }
    a->ports[static_cast<size_t>(port - 1)].online = online;
    return true;
}

bool setLunOnline(San& san, const std::string& wwuln, bool online, std::string& problem)
{
    Lun* lun = findLunByWwuln(san, wwuln);
    if (!lun) {
        problem = "no LUN with WWULN \"" + wwuln + "\" in the SAN";
        return false;
    }
    lun->online = online;
    return true;
}

bool setAgentOnline(San& san, const std::string& agent, bool online, std::string& problem)
{
    for (Host& h : san.hosts)
        if (!h.agent.empty() && h.agent == agent) {
            h.online = online;
            return true;
        }
    problem = "no remote agent \"" + agent + "\" in the SAN";
    return false;
}

int setOnline(StateStore& store, const std::vector<std::string>& args, bool online)
{
    const char* verb = online ? "online" : "offline";
    bool known = !args.empty() && (args[0] == "adapter" || args[0] == "port" || args[0] == "lun" || args[0] == "agent");
    size_t wanted = !known ? 0 : args[0] == "port" ? 3 : 2;
    if (!known || args.size() != wanted)
        return badArguments(std::string(verb) +
                            " takes adapter ADAPTER, port ADAPTER PORT, lun WWULN or agent ADDRESS");
    return changeState(store, [&](San& san, std::string& problem) {
        if (args[0] == "lun")
            return setLunOnline(san, args[1], online, problem);
        if (args[0] == "agent")
            return setAgentOnline(san, args[1], online, problem);
        return setAdapterOnline(san, args, online, problem);
    });
}

// Takes "--log N" out of the arguments of generate: -1 when absent.
bool takeLogOption(std::vector<std::string>& args, long long& records, std::string& problem)
{
    records = -1;
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] != "--log")
            continue;
        if (i + 1 >= args.size() || !wholeNumber(args[i + 1], 0, 10000000, records)) {
            problem = "--log takes a number of records from 0 to 10000000";
            return false;
        }
        args.erase(args.begin() + static_cast<std::ptrdiff_t>(i), args.begin() + static_cast<std::ptrdiff_t>(i) + 2);
        return true;
    }
    return true;
}

int generate(StateStore& store, std::vector<std::string> args)
{
    long long logRecords;
    std::string problem;
    if (!takeLogOption(args, logRecords, problem))
        return badArguments(problem);
    std::string output;
    long long targets = 16, drives = 4, cached = 0;
    std::vector<std::string> plain;
    for (size_t i = 0; i < args.size(); ++i) {
        if ((args[i] == "--targets" || args[i] == "--drives" || args[i] == "--cached" || args[i] == "--output") &&
            i + 1 >= args.size())
            return badArguments(args[i] + " needs a value");
        if (args[i] == "--targets") {
            if (!wholeNumber(args[++i], 1, 1024, targets))
                return badArguments("--targets takes a number from 1 to 1024");
        } else if (args[i] == "--drives") {
            if (!wholeNumber(args[++i], 0, 64, drives))
                return badArguments("--drives takes a number from 0 to 64");
        } else if (args[i] == "--cached") {
            if (!wholeNumber(args[++i], 0, 1000000, cached))
                return badArguments("--cached takes a number from 0 to 1000000");
        } else if (args[i] == "--output") {
            output = args[++i];
        } else {
            plain.push_back(args[i]);
        }
    }
    long long adapters, paths;
    if (plain.size() != 2 || !wholeNumber(plain[0], 1, 64, adapters) || !wholeNumber(plain[1], 1, 1000000, paths))
        return badArguments("generate takes ADAPTERS (1 to 64) and LUN_PATHS (1 to 1000000)");
    San san = generateSan(static_cast<int>(adapters), static_cast<int>(paths), static_cast<int>(targets),
                          static_cast<int>(drives), static_cast<int>(cached));
    if (logRecords >= 0)
        replaceLogs(san, simNow(), static_cast<int>(logRecords));
    std::string error;
    bool ok = output.empty() ? store.replace(san, error) : writeTextFileAtomically(output, scenarioToText(san), error);
    if (!ok)
        return failed(error);
    size_t const cachedLuns = std::min(san.luns.size(), static_cast<size_t>(cached));
    std::string const cachedText = cachedLuns ? " (" + std::to_string(cachedLuns) + " cached)" : std::string();
    std::printf("Generated %lld adapters, %zu targets, %zu LUNs%s with %lld paths into %s\n", adapters,
                san.targets.size(), san.luns.size(), cachedText.c_str(), paths,
                output.empty() ? store.path().c_str() : output.c_str());
    return kDone;
}

// log ADAPTER append SEVERITY SOURCE MESSAGE [--count N]
int appendToLog(StateStore& store, std::vector<std::string> args)
{
    long long count = 1;
    if (args.size() == 7 && args[5] == "--count") {
        if (!wholeNumber(args[6], 1, 1000000, count))
            return badArguments("--count takes a number from 1 to 1000000");
        args.resize(5);
    }
    if (args.size() != 5 || args[1] != "append")
        return badArguments("log takes ADAPTER append SEVERITY SOURCE MESSAGE [--count N]");
    int severity = 0;
    if (!severityFromText(args[2], severity))
        return badArguments("\"" + args[2] +
                            "\" is not a severity: unknown, fatal, error, warning, trace, info, debug, system or a "
                            "number");
    return changeState(store, [&](San& san, std::string& problem) {
        Adapter* a = adapterNamed(san, args[0]);
        if (!a) {
            problem = "no adapter \"" + args[0] + "\" in the SAN";
            return false;
        }
        appendLogRecords(*a, simNow(), severity, args[3], args[4], count);
        return true;
    });
}

int run(StateStore& store, const std::string& command, const std::vector<std::string>& args)
{
    if (command == "reset")
        return reset(store, args);
    if (command == "show")
        return show(store, args);
    if (command == "export")
        return exportState(store, args);
    if (command == "check")
        return check(args);
    if (command == "fault")
        return addFault(store, args, false);
    if (command == "partial")
        return addFault(store, args, true);
    if (command == "faults")
        return listFaults(store, args);
    if (command == "clear-faults")
        return clearFaults(store, args);
    if (command == "offline")
        return setOnline(store, args, false);
    if (command == "online")
        return setOnline(store, args, true);
    if (command == "generate")
        return generate(store, args);
    if (command == "log")
        return appendToLog(store, args);
    return badArguments("unknown command \"" + command + "\"");
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    std::string statePath = StateStore::defaultPath();
    if (!args.empty() && args[0] == "--state") {
        if (args.size() < 2 || args[1].empty())
            return badArguments("--state needs a file name");
        statePath = args[1];
        args.erase(args.begin(), args.begin() + 2);
    }
    if (args.empty())
        return badArguments("no command given");
    if (args[0] == "help" || args[0] == "--help" || args[0] == "-h") {
        std::fputs(kUsage, stdout);
        return kDone;
    }
    StateStore store(statePath);
    std::string command = args[0];
    args.erase(args.begin());
    try {
        return run(store, command, args);
    } catch (const std::exception& e) {
        return failed(e.what());
    }
}
