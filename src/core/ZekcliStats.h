#pragma once

#include <string>
#include <vector>

// Outcome counts of the command lines run in one process, keyed by adapter
// text, then command name, then return value. A script run shows them at the
// end so that an administrator sees which lines failed and why.

class ZekcliStatsPerReturnValue {
public:
    explicit ZekcliStatsPerReturnValue(int rv) : returnValue(rv) {}
    std::vector<unsigned int> iterations;
    int returnValue;
};

class ZekcliStatsPerCommand {
public:
    explicit ZekcliStatsPerCommand(std::string const& name) : commandName(name) {}
    std::vector<ZekcliStatsPerReturnValue> returnValues;
    std::string commandName;
};

// Keyed by the text of the adapter keyword; the historical name is kept.
class ZekcliStatsPerIpAddress {
public:
    explicit ZekcliStatsPerIpAddress(std::string const& key) : adapterText(key) {}
    std::vector<ZekcliStatsPerCommand> commands;
    std::string adapterText;
};

class ZekcliStats {
public:
    void add(std::string const& adapter, std::string const& command, int rc, unsigned int iteration);
    std::string displayText() const;

    std::vector<ZekcliStatsPerIpAddress> adapters;
};
