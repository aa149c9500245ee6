// Finding what a LUN command addresses: the adapter and the LUN paths its
// keywords name, the LUNs that every reachable adapter sees, and the
// library's object of one LUN path with its record filled.
#pragma once

#include <string>
#include <vector>

struct AddressedAdapter;
class HIsaAdapter;
class HLun;
class HLunIdList;
class KLunInfo;
class PLunID;
class PIpAddress;
class TokenCmd;

// Selects the adapter (-zek) and resolves the LUN keywords on it, as every
// command addressed to LUNs of one adapter begins. Returns 0, the
// selection's code, or 52 when the keywords do not name what is needed; the
// resolution may leave words in `err` for the caller to show.
int findAdapterAndLuns(TokenCmd& cmd, AddressedAdapter& addressed, bool oneLunRequired, std::vector<PLunID>& luns,
                       std::string& err);

// Reads the target and number keywords the way the LUN changing commands
// check them before acting on their LUN. Returns 0, 52 for a keyword the
// command lacks or an unreadable target, or 1206 when no target results.
int checkLunTargetKeywords(TokenCmd& cmd, std::string& err);

// Forgets earlier scans, scans the adapters of this host or of the -agent
// host, then gathers the LUNs they all see, one record per LUN, into the
// library's adapter group list. `agent` is the address used. Returns 0, 1105
// for an unusable -agent, or the library's code.
int scanAdapterGroupLuns(TokenCmd& cmd, PIpAddress& agent, std::string& err);

// The adapter the library holds with this identifier, or null.
HIsaAdapter* findAdapterById(unsigned long long id);

// The library fills an adapter's LUN list only when a target's LUNs are
// gathered, which a LUN named in full by its keywords, or taken from the
// adapter group list, has not caused yet. How much is gathered on a miss:
enum class LunGathering {
    // The path's own target, and the adapter's targets first when it does
    // not know that target yet. Nothing is found when that gathering fails.
    PathTarget,
    // Every target of the adapter. A target that cannot list its LUNs is
    // passed over: the lookup then simply does not find what it would hold.
    EveryTarget,
};

// Gathers every target and then the LUNs of each. Returns 0 or the first
// failing code (a partial target list, 2, still counts as success).
int gatherLunsOfEveryTarget(HIsaAdapter& adapter);

// The adapter's object for this LUN path, gathering as `gathering` says when
// the library does not hold it yet. Null when the adapter still holds no such
// LUN.
HLun* findLunObject(HIsaAdapter& adapter, PLunID const& lun, LunGathering gathering);

// Makes sure the record of the LUN is filled: 0, or the code of the refresh.
int readLunRecord(HLun& lun);

// The filled record of a LUN object; null when there is no object or its
// record cannot be read.
KLunInfo const* readableLunRecord(HLun* lun);

// The LUN paths a library list holds, copied out, so that gathering more
// while walking them cannot disturb the walk. Empty for no list.
std::vector<PLunID> lunPathsOf(HLunIdList* list);
