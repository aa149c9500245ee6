// The three kinds of object that an adapter sees on the fabric: targets,
// initiators and devices. Their commands are one logic (FabricListing.h);
// what differs is told here, one family per kind: where the objects are
// held, how an object is named, and the label it is shown under.
#pragma once

#include <string>
#include <vector>

#include "records/KDeviceInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KTargetInfo.h"
#include "records/PUniqueID.h"

class HIsaAdapter;
class TokenCmd;

// One object as a command takes it from the library: its name and record.
template <typename Id, typename Info>
struct FabricEntry {
    Id id;
    Info info;
};

// The name under which the library finds an initiator or a device; the
// library hands out only their records, so the name is made from those.
PInitiatorID initiatorIdOf(KInitiatorInfo const& info);
KDeviceID deviceIdOf(KDeviceInfo const& info);

struct TargetFamily {
    using Id = PTargetID;
    using Info = KTargetInfo;
    using Entry = FabricEntry<Id, Info>;
    static constexpr char const* kName = "Target";
    // Targets are shown from what the library holds, without emptying it.
    static constexpr bool kClearBeforeShowingAll = false;
    // "show target" of all targets leaves its result payload empty.
    static constexpr bool kRecordsOfAllInResult = false;

    static void clear(HIsaAdapter&) {}
    static std::vector<Entry> entries(HIsaAdapter& adapter);
    static Info const* find(HIsaAdapter& adapter, Id const& id);
    static bool isInternal(Info const& info) { return info.isInternal(); }
    static bool readId(TokenCmd& cmd, Id& id, bool& found, std::string& err);
    static std::string listLine(TokenCmd const& cmd, Entry const& entry);
    static std::string showLabel(TokenCmd const& cmd, Entry const& entry);
};

struct InitiatorFamily {
    using Id = PInitiatorID;
    using Info = KInitiatorInfo;
    using Entry = FabricEntry<Id, Info>;
    static constexpr char const* kName = "Initiator";
    static constexpr bool kClearBeforeShowingAll = true;
    static constexpr bool kRecordsOfAllInResult = true;

    static void clear(HIsaAdapter& adapter);
    static std::vector<Entry> entries(HIsaAdapter& adapter);
    static Info const* find(HIsaAdapter& adapter, Id const& id);
    // Initiators have no flag of their own for that: every one counts.
    static bool isInternal(Info const&) { return false; }
    static bool readId(TokenCmd& cmd, Id& id, bool& found, std::string& err);
    static std::string listLine(TokenCmd const& cmd, Entry const& entry);
    static std::string showLabel(TokenCmd const& cmd, Entry const& entry);
};

struct DeviceFamily {
    using Id = KDeviceID;
    using Info = KDeviceInfo;
    using Entry = FabricEntry<Id, Info>;
    static constexpr char const* kName = "Device";
    static constexpr bool kClearBeforeShowingAll = true;
    static constexpr bool kRecordsOfAllInResult = true;

    static void clear(HIsaAdapter& adapter);
    static std::vector<Entry> entries(HIsaAdapter& adapter);
    static Info const* find(HIsaAdapter& adapter, Id const& id);
    static bool isInternal(Info const& info) { return info.isInternal; }
    static bool readId(TokenCmd& cmd, Id& id, bool& found, std::string& err);
    static std::string listLine(TokenCmd const& cmd, Entry const& entry);
    static std::string showLabel(TokenCmd const& cmd, Entry const& entry);
};
