#include "core/ZekcliStats.h"

#include <algorithm>

#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "core/ZekcliReturn.h"

namespace {

template <typename Entry, typename Key>
Entry& findOrAppend(std::vector<Entry>& entries, Key const& key, Key Entry::*field)
{
    auto const found =
        std::find_if(entries.begin(), entries.end(), [&](Entry const& entry) { return entry.*field == key; });
    if (found != entries.end())
        return *found;
    entries.emplace_back(key);
    return entries.back();
}

// The report names the command line's own failures; everything else is a
// code of the management library, which alone knows its texts.
std::string returnValueName(int rv)
{
    switch (rv) {
    case ZEKCLI_INIT_FAIL:
        return "ZEKCLI_INIT_FAIL";
    case ZEKCLI_PARSE_FAIL:
        return "ZEKCLI_PARSE_FAIL";
    case ZEKCLI_CONFIRM_FAIL:
        return "ZEKCLI_CONFIRM_FAIL";
    case ZEKCLI_CMD_FAIL:
        return "ZEKCLI_CMD_FAIL";
    case ZEKCLI_EXIT:
        return "ZEKCLI_EXIT";
    default:
        return g_pHbaMgmtApi->returnCodeToText(rv);
    }
}

constexpr size_t kNumbersPerRow = 8;

std::string iterationList(std::vector<unsigned int> const& iterations)
{
    std::string text;
    for (size_t i = 0; i < iterations.size(); ++i) {
        text += std::to_string(iterations[i]);
        if (i + 1 < iterations.size())
            text += ", ";
        if ((i + 1) % kNumbersPerRow == 0)
            text += "\n" + std::string(20, ' ');
    }
    return text;
}

std::string returnValueText(ZekcliStatsPerReturnValue const& entry)
{
    std::string text = std::string(12, ' ') + returnValueName(entry.returnValue) + " at line";
    if (entry.iterations.size() > 1)
        text += "s";
    return text + " " + iterationList(entry.iterations) + "\n";
}

bool hasFailure(ZekcliStatsPerCommand const& command)
{
    return std::any_of(command.returnValues.begin(), command.returnValues.end(),
                       [](ZekcliStatsPerReturnValue const& entry) { return entry.returnValue != 0; });
}

std::string commandText(ZekcliStatsPerCommand const& command)
{
    std::string text = std::string(8, ' ') + "\"" + command.commandName + "\"\n";
    for (ZekcliStatsPerReturnValue const& entry : command.returnValues)
        if (entry.returnValue != 0)
            text += returnValueText(entry);
    return text;
}

std::string adapterText(ZekcliStatsPerIpAddress const& adapter)
{
    size_t attempted = 0;
    size_t successful = 0;
    for (ZekcliStatsPerCommand const& command : adapter.commands)
        for (ZekcliStatsPerReturnValue const& entry : command.returnValues) {
            attempted += entry.iterations.size();
            if (entry.returnValue == 0)
                successful += entry.iterations.size();
        }
    std::string text = "    IP = " + adapter.adapterText + "\n    " + std::to_string(attempted) +
        " commands attempted, " + std::to_string(successful) + " successful";
    if (attempted > successful)
        text += ", " + std::to_string(attempted - successful) + " failed";
    text += "\n";
    for (ZekcliStatsPerCommand const& command : adapter.commands)
        if (hasFailure(command))
            text += commandText(command) + "\n";
    return text + "\n";
}

} // namespace

void ZekcliStats::add(std::string const& adapter, std::string const& command, int rc, unsigned int iteration)
{
    ZekcliStatsPerIpAddress& perAdapter = findOrAppend(adapters, adapter, &ZekcliStatsPerIpAddress::adapterText);
    ZekcliStatsPerCommand& perCommand = findOrAppend(perAdapter.commands, command, &ZekcliStatsPerCommand::commandName);
    ZekcliStatsPerReturnValue& perValue =
        findOrAppend(perCommand.returnValues, rc, &ZekcliStatsPerReturnValue::returnValue);
    perValue.iterations.push_back(iteration);
}

std::string ZekcliStats::displayText() const
{
    std::string text = "\r             \n";
    for (ZekcliStatsPerIpAddress const& adapter : adapters)
        text += adapterText(adapter);
    return text + "\n";
}
