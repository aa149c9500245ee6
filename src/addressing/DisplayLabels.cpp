// The short texts by which adapters, clusters, devices, initiators, targets,
// drives, names and LUNs appear in output. Most of them are written as the
// keyword that would address the object, so that a user can paste them back
// onto a command line.
#include <algorithm>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "records/KAdapterGroupExtendedLunInfo.h"
#include "records/KClusterInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/PUniqueID.h"

namespace {

constexpr int32_t kAdapterStateOffline = 2;

std::string clusterRolesText(HCluster& cluster)
{
    bool const primary = cluster.isPrimaryValid();
    bool const secondary = cluster.isSecondaryValid();
    if (!primary && !secondary)
        return " (Orphan cluster -- no valid primary or secondary adapter available)";
    if (!secondary)
        return " (Secondary adapter is not valid)";
    if (!primary)
        return " (Primary adapter not valid, but secondary is available)";
    return std::string();
}

std::string adapterStateText(HIsaAdapter& adapter)
{
    KIsaAdapterInfo const* const info = adapter.getCachedAdapterInfo();
    if (info && info->adapterState == kAdapterStateOffline)
        return " <Offline>";
    std::string text;
    if (info && info->isClusterPrimary())
        text += " [Cluster Primary]";
    if (info && info->isClusterSecondary())
        text += " [Cluster Secondary]";
    return text;
}

} // namespace

std::string TokenCmd::getSummaryText_Adapter(KIsaAdapterPath const& path) const
{
    std::string text = "    -zek=" + path.hbaIDText() + "     ";
    HIsaAdapter* const adapter = g_pHbaMgmtApi->getAdapters()->find(path);
    if (!adapter)
        text += " <Not Found>";
    else
        text += adapterStateText(*adapter);
    return text + "\n";
}

std::string TokenCmd::getSummaryText_Cluster(KClusterID const& id) const
{
    std::string text = "-clusterid=\"" + id.displayText() + "\"   ";
    HCluster* const cluster = g_pHbaMgmtApi->getClusters()->find(id);
    if (!cluster)
        return text + " <Not Found>\n\n";
    KClusterID const* const clusterId = cluster->getClusterId();
    // The scan's pseudo cluster, whose key is invalid, holds the adapters
    // outside every cluster.
    if (!clusterId || !clusterId->isClusterKeyValid())
        text += "(Adapters that are not a member of any cluster)\n";
    else
        text += clusterRolesText(*cluster);
    text += "\n";
    if (std::vector<KIsaAdapterPath> const* const members = cluster->getMemberPaths())
        for (KIsaAdapterPath const& member : *members)
            text += getSummaryText_Adapter(member);
    return text + "\n";
}

std::string TokenCmd::getDisplayText_Device(KDeviceID const& id) const
{
    if (id.isFcDeviceId())
        return "-fc_device=" + id.displayText();
    if (id.isIscsiDeviceId())
        return "-is_device=" + id.displayText();
    return std::string();
}

std::string TokenCmd::getDisplayText_Initiator(PInitiatorID const& id, KInitiatorInfo const& info) const
{
    if (info.isIscsiInitiator())
        return "\n-is_initiator=" + id.displayText() +
            "\n    -iscsi_name=" + PBase::charFieldToText(info.iscsi.iscsiName);
    return "\n-fc_initiator=" + id.displayText() + "\n    -wwpn=" + PBase::wwnameToText(info.fc.wwpn) +
        " -wwnn=" + PBase::wwnameToText(info.fc.wwnn);
}

std::string TokenCmd::getDisplayText_Target(PTargetID const& id) const
{
    if (id.isFcTargetId())
        return "-fc_target=" + id.displayText() + "\n";
    if (id.isIscsiTargetId())
        return "-is_target=" + id.displayText() + "\n";
    return "\n";
}

std::string TokenCmd::getDisplayText_Drive(KDriveID const& id) const
{
    return "-drive=" + id.displayText();
}

std::string TokenCmd::getDisplayText_Wwname(unsigned char const* name, int length, PBase::WWULN_CODE_SET_TYPE codeSet,
                                            std::string const& keyword, bool destination) const
{
    std::string text = (destination ? "-dmdest_" : "-") + keyword + "=";
    // A text name fills its field to the last byte when it is as long as the
    // field, so it is read from a terminated copy of its own length.
    std::string const bounded =
        name ? std::string(reinterpret_cast<char const*>(name), std::max(length, 0)) : std::string();
    unsigned char const* const bytes = reinterpret_cast<unsigned char const*>(bounded.c_str());
    if (codeSet == PBase::WWULN_CODE_SET_BINARY)
        text += PBase::wwulnToText(bytes, length, codeSet);
    else if (codeSet == PBase::WWULN_CODE_SET_TEXT)
        text += "\"" + PBase::wwulnToText(bytes, length, codeSet) + "\"";
    return text;
}

std::string TokenCmd::getDisplayText_Lun(PLunID const& lun, bool bDestination) const
{
    std::string const prefix = bDestination ? "dmdest_" : "";
    std::string text = "-" + prefix + "lun_number=" + PBase::numberToText(lun.lunNumber());
    PTargetID const& target = lun.targetID();
    if (target.isFcTargetId())
        text += " -" + prefix + "fc_target=" + target.displayText();
    else if (target.isIscsiTargetId())
        text += " -" + prefix + "is_target=" + target.displayText();
    return text;
}

std::string TokenCmd::getDisplayText_AdapterGroupLun(KAdapterGroupExtendedLunInfo const& info) const
{
    std::string text = getDisplayText_Lun(info.lunId, false);
    if (info.bCached)
        return text + " [Cached on -zek=" + KIsaAdapterPath::ui64numberToHexText(info.ui64CachingAdapter) + " ]";
    if (info.ui32NonCachedAdapterCount > 0)
        text += "   -zek=" + KIsaAdapterPath::ui64numberToHexText(info.ui64NonCachedAdapters[0]);
    return text + "\n";
}
