#include "api/Ids.h"

#include <arpa/inet.h>
#include <cstring>

namespace sim {

namespace {

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

std::vector<unsigned char> nameBytes(const std::string& hexOrText, bool binary)
{
    std::vector<unsigned char> bytes;
    if (!binary || !hexToBytes(hexOrText, bytes))
        bytes.assign(hexOrText.begin(), hexOrText.end());
    if (bytes.size() > 256)
        bytes.resize(256);
    return bytes;
}

} // namespace

bool hexToBytes(const std::string& hex, std::vector<unsigned char>& out)
{
    out.clear();
    if (hex.size() % 2)
        return false;
    // Names are decoded for every LUN a walk passes: one allocation each.
    out.resize(hex.size() / 2);
    for (size_t i = 0; i < out.size(); ++i) {
        int hi = hexValue(hex[2 * i]), lo = hexValue(hex[2 * i + 1]);
        if (hi < 0 || lo < 0) {
            out.resize(i); // the bytes before the fault stay, as some callers pad them
            return false;
        }
        out[i] = static_cast<unsigned char>(hi * 16 + lo);
    }
    return true;
}

std::string bytesToHex(const unsigned char* bytes, size_t length)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    for (size_t i = 0; i < length; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

PTargetID targetId(const Target& t)
{
    PTargetID id;
    if (t.protocol == 2) {
        id.initIscsiTargetID(reinterpret_cast<const unsigned char*>(t.iscsiName.c_str()));
    } else {
        std::vector<unsigned char> wwpn = nameBytes(t.wwpn, true);
        wwpn.resize(8);
        id.initFcTargetID(wwpn.data(), 8);
    }
    return id;
}

const Target* targetFor(const San& san, const PTargetID& id)
{
    for (const Target& t : san.targets)
        if (targetId(t) == id)
            return &t;
    return nullptr;
}

PLunID lunId(const Target& t, const LunPath& p)
{
    return lunId(targetId(t), p);
}

PLunID lunId(const PTargetID& target, const LunPath& p)
{
    PLunID id;
    id.initLunID(target, static_cast<int>(p.lun), PBase::convertIntToVpIndex(static_cast<int>(p.vpGroup)));
    return id;
}

bool pathFor(const San& san, const PLunID& id, PathRef& out)
{
    const Target* t = targetFor(san, id.targetID());
    if (!t)
        return false;
    out.target = t->name;
    out.lun = static_cast<u32>(id.lunNumber());
    int vpg = id.vpgIndex();
    // An identifier made without a volume path group names the first one.
    out.vpGroup = (vpg >= 1 && vpg <= 4) ? static_cast<u32>(vpg) : 1;
    return true;
}

std::vector<unsigned char> wwulnBytes(const Lun& lun)
{
    return nameBytes(lun.wwuln, lun.codeSet == 1);
}

KWwulnLunID wwulnId(const Lun& lun)
{
    std::vector<unsigned char> bytes = wwulnBytes(lun);
    KWwulnLunID id;
    id.initWwulnLunID(static_cast<PBase::WWULN_CODE_SET_TYPE>(lun.codeSet), static_cast<int>(bytes.size()),
                      bytes.data());
    return id;
}

const Lun* WwulnIndex::find(const San& san, const unsigned char* bytes, size_t length)
{
    if (!bytes)
        return nullptr;
    const std::string key(reinterpret_cast<const char*>(bytes), length);
    if (const Lun* known = lookup(san, key))
        return known;
    lunOf_.clear();
    for (size_t i = 0; i < san.luns.size(); ++i) {
        std::vector<unsigned char> own = wwulnBytes(san.luns[i]);
        // The first of equal names wins, as in a walk from the start.
        lunOf_.emplace(std::string(own.begin(), own.end()), i);
    }
    return lookup(san, key);
}

const Lun* WwulnIndex::lookup(const San& san, const std::string& key) const
{
    auto at = lunOf_.find(key);
    if (at == lunOf_.end() || at->second >= san.luns.size())
        return nullptr;
    const Lun& lun = san.luns[at->second];
    std::vector<unsigned char> own = wwulnBytes(lun);
    bool same = own.size() == key.size() && std::memcmp(own.data(), key.data(), key.size()) == 0;
    return same ? &lun : nullptr;
}

const Lun* lunForWwulnId(const San& san, const KWwulnLunID& id)
{
    for (const Lun& l : san.luns)
        if (wwulnId(l) == id)
            return &l;
    // A text name given for a binary WWULN: the user typed its digits, plain
    // or as the tool prints them.
    PBase::WWULN_CODE_SET_TYPE codeSet;
    unsigned short length = 0;
    unsigned char name[KWwulnLunID::WWULN_COPY_SIZE];
    if (!id.copyWwulnInfo(codeSet, length, name, sizeof name))
        return nullptr;
    return findLunByWwuln(san, std::string(reinterpret_cast<const char*>(name), length));
}

bool driveNameIsBinary(const Drive& d)
{
    // A drive named by hexadecimal digits is a binary world-wide name, as the
    // command line reads such a name; any other name is text.
    std::vector<unsigned char> bytes;
    return hexToBytes(d.id, bytes) && !bytes.empty();
}

std::vector<unsigned char> driveNameBytes(const Drive& d)
{
    return nameBytes(d.id, driveNameIsBinary(d));
}

KDriveID driveId(const Drive& d)
{
    KDriveID id;
    std::vector<unsigned char> bytes = driveNameBytes(d);
    id.initDriveID(driveNameIsBinary(d) ? PBase::WWULN_CODE_SET_BINARY : PBase::WWULN_CODE_SET_TEXT,
                   static_cast<int>(bytes.size()), bytes.data());
    return id;
}

// The SSD identifier a caller gives for a drive: its serial number as text.
KWwulnLunID driveSsdId(const Drive& d)
{
    KWwulnLunID id;
    std::string name = d.serial;
    id.initWwulnLunID(PBase::WWULN_CODE_SET_TEXT, static_cast<int>(name.size()),
                      reinterpret_cast<unsigned char*>(name.data()));
    return id;
}

KClusterID clusterId(const std::string& id)
{
    KClusterID key;
    key.initClusterID(id.c_str(), static_cast<unsigned>(id.size()));
    return key;
}

std::string clusterName(const KClusterID& id)
{
    return std::string(reinterpret_cast<const char*>(id.getData()), static_cast<size_t>(id.getDataLength()));
}

bool parseAgentAddress(const std::string& text, PIpAddress& out, std::string& error)
{
    out.init();
    std::string numeric = text == "localhost" ? "127.0.0.1" : text;
    unsigned char bytes[16];
    if (inet_pton(AF_INET, numeric.c_str(), bytes) == 1) {
        out.setType(PIpAddress::IPV_SHORT_1);
        out.setData(bytes, 4);
    } else if (inet_pton(AF_INET6, numeric.c_str(), bytes) == 1) {
        out.setType(PIpAddress::IPV_LONG_1);
        out.setData(bytes, 16);
    } else {
        error = text.empty() ? "No remote agent address was given"
                             : "\"" + text + "\" is not a numeric IPv4 or IPv6 address (host names are not looked up)";
        return false;
    }
    char canonical[INET6_ADDRSTRLEN];
    inet_ntop(out.getType() == PIpAddress::IPV_SHORT_1 ? AF_INET : AF_INET6, bytes, canonical, sizeof canonical);
    out.setNumericText(canonical, "");
    out.setInitText(text.c_str(), "");
    out.setLookupText(text.c_str());
    return true;
}

PIpAddress agentAddress(const std::string& agent)
{
    PIpAddress address;
    std::string ignored;
    if (!agent.empty())
        parseAgentAddress(agent, address, ignored);
    return address;
}

std::string agentText(const PIpAddress& address)
{
    return address.getType() == PIpAddress::IPV_NOT_SET ? std::string() : std::string(address.getNumericText());
}

KIsaAdapterPath adapterPath(const Adapter& a)
{
    KIsaAdapterPath path;
    bool local = a.device >= 0;
    path.init(a.id.value, local ? a.device : a.viaDevice, local, agentAddress(a.host), KIsaAdapterPath::ADAPTER_TYPE_1);
    return path;
}

const Adapter* adapterForPath(const San& san, const KIsaAdapterPath& path)
{
    std::string host = agentText(path.ipAddrRemoteAgentHost());
    for (const Adapter& a : san.adapters) {
        if (a.host != host)
            continue;
        if (path.isLocalDevice() && a.device >= 0 && a.device == path.deviceInstanceForAccess())
            return &a;
        if (!path.isLocalDevice() && a.id.value == path.isaHbaId())
            return &a;
    }
    // An identifier names its adapter however it is reached from this host.
    for (const Adapter& a : san.adapters)
        if (a.host == host && a.id.value == path.isaHbaId() && path.isaHbaId() != 0)
            return &a;
    return nullptr;
}

} // namespace sim
