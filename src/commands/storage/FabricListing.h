// "list" and "show" of what an adapter sees on the fabric, written once for
// targets, initiators and devices (their differences are in
// FabricFamilies.h).
//
// Both gather first. A gathering that only partly succeeds is told ahead of
// the text, and the command goes on with what it got: "show" shows it, but
// "list" shows no list, as it may be incomplete. The result record carries
// the gathering's code either way, and every object, internal ones too.
#pragma once

#include <string>
#include <vector>

#include "api/HIsaAdapter.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/CountedRecordBuffer.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"

// Asks the adapter to gather its targets, initiators and devices. 0, or 2
// with `notice` holding the line that tells of the partial success, or the
// adapter's failure.
int gatherFabric(HIsaAdapter& adapter, std::string& notice);

// The message and code of an object that the adapter does not see.
int fabricObjectNotFound(char const* kind, std::string const& name, std::string& err);

template <typename Family>
std::string fabricListText(TokenCmd const& cmd, std::vector<typename Family::Entry> const& entries)
{
    std::string lines;
    size_t shown = 0;
    for (typename Family::Entry const& entry : entries)
        if (!Family::isInternal(entry.info)) {
            lines += Family::listLine(cmd, entry);
            ++shown;
        }
    return std::string(Family::kName) + " count = " + std::to_string(shown) + "\n" + lines;
}

template <typename Family>
int listFabric(TokenCmd& cmd, std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(cmd, addressed, err))
        return rc;
    std::string text;
    int const gathered = gatherFabric(*addressed.adapter, text);
    if (gathered != 0 && gathered != MHBA_S_PARTIAL_SUCCESS)
        return gathered;
    CommandOutput out(cmd);
    if (!out.banner(addressed.adapter))
        return out.end(0, err);
    std::vector<typename Family::Entry> const entries = Family::entries(*addressed.adapter);
    if (gathered == 0)
        text += fabricListText<Family>(cmd, entries);
    out.line(text + "\n\n");
    std::vector<typename Family::Id> ids;
    for (typename Family::Entry const& entry : entries)
        ids.push_back(entry.id);
    writeCountedResult(out, gathered, ids);
    return out.end(0, err);
}

// One object, named on the line: taken from what the library holds, as it
// stands.
template <typename Family>
int showOneFabricObject(TokenCmd& cmd, HIsaAdapter& adapter, typename Family::Id const& id, std::string& err)
{
    typename Family::Info const* const info = Family::find(adapter, id);
    if (!info)
        return fabricObjectNotFound(Family::kName, id.displayText(), err);
    typename Family::Entry const entry{id, *info};
    CommandOutput out(cmd);
    out.banner(&adapter);
    out.line(Family::showLabel(cmd, entry) + entry.info.displayText());
    writeCountedResult(out, 0, std::vector<typename Family::Info>{entry.info});
    return out.end(0, err);
}

template <typename Family>
int showAllFabricObjects(TokenCmd& cmd, HIsaAdapter& adapter, std::string& err)
{
    if (Family::kClearBeforeShowingAll)
        Family::clear(adapter);
    std::string text;
    int const gathered = gatherFabric(adapter, text);
    if (gathered != 0 && gathered != MHBA_S_PARTIAL_SUCCESS)
        return gathered;
    std::vector<typename Family::Info> records;
    for (typename Family::Entry const& entry : Family::entries(adapter)) {
        if (Family::kRecordsOfAllInResult)
            records.push_back(entry.info);
        if (!Family::isInternal(entry.info))
            text += Family::showLabel(cmd, entry) + entry.info.displayText() + "\n\n";
    }
    CommandOutput out(cmd);
    out.banner(&adapter);
    out.line(text);
    writeCountedResult(out, gathered, records);
    return out.end(0, err);
}

template <typename Family>
int showFabric(TokenCmd& cmd, std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(cmd, addressed, err))
        return rc;
    typename Family::Id id;
    bool named = false;
    if (!Family::readId(cmd, id, named, err))
        return ZEKCLI_PARSE_FAIL;
    if (named)
        return showOneFabricObject<Family>(cmd, *addressed.adapter, id, err);
    return showAllFabricObjects<Family>(cmd, *addressed.adapter, err);
}
