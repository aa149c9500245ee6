// Conversions between the model's names and the identifier records that
// cross the API: targets, LUN paths, WWULNs, drives, clusters, adapter paths
// and agent addresses.
#pragma once

#include "model/View.h"

#include "records/KIsaAdapterPath.h"
#include "records/PIpAddress.h"
#include "records/PUniqueID.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace sim {

// Hexadecimal digits to bytes; false on any other character or an odd count.
// After a bad character `out` holds the bytes before it; after an odd count,
// nothing.
bool hexToBytes(const std::string& hex, std::vector<unsigned char>& out);
std::string bytesToHex(const unsigned char* bytes, size_t length);

PTargetID targetId(const Target& t);
const Target* targetFor(const San& san, const PTargetID& id);

PLunID lunId(const Target& t, const LunPath& p);
// For walks over many paths of one target, whose identifier is made once.
PLunID lunId(const PTargetID& target, const LunPath& p);
bool pathFor(const San& san, const PLunID& id, PathRef& out);

// The bytes of a LUN's WWULN as the adapter reports them.
std::vector<unsigned char> wwulnBytes(const Lun& lun);
KWwulnLunID wwulnId(const Lun& lun);
const Lun* lunForWwulnId(const San& san, const KWwulnLunID& id);

// Finds LUNs by the bytes of their WWULN without decoding every LUN's name
// for each question, which over thousands of LUNs asked one by one costs
// their square. The index is made when first asked and made again whenever
// the SAN no longer agrees with it, so it never answers from an old SAN.
class WwulnIndex {
public:
    const Lun* find(const San& san, const unsigned char* bytes, size_t length);

private:
    const Lun* lookup(const San& san, const std::string& key) const;

    std::unordered_map<std::string, size_t> lunOf_;
};

// A drive's name in hexadecimal digits is a binary world-wide name; any other
// name is text.
bool driveNameIsBinary(const Drive& d);
std::vector<unsigned char> driveNameBytes(const Drive& d);
KDriveID driveId(const Drive& d);
KWwulnLunID driveSsdId(const Drive& d);

KClusterID clusterId(const std::string& id);
std::string clusterName(const KClusterID& id);

// Numeric IPv4, IPv6 or "localhost"; never a name lookup.
bool parseAgentAddress(const std::string& text, PIpAddress& out, std::string& error);
PIpAddress agentAddress(const std::string& agent);
std::string agentText(const PIpAddress& address); // "" for the local host

KIsaAdapterPath adapterPath(const Adapter& a);
// The adapter a path names: a device on its host, or an identifier reached
// from that host. Null when there is none.
const Adapter* adapterForPath(const San& san, const KIsaAdapterPath& path);

} // namespace sim
