// The prompts that choose a target, an initiator, a device, a cluster or a
// drive from what the adapter reports.
#include <cstring>
#include <string>
#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "interactive/MenuConsole.h"
#include "interactive/ObjectMenu.h"
#include "records/KDeviceInfo.h"
#include "records/KInitiatorInfo.h"
#include "records/KTargetInfo.h"
#include "records/PUniqueID.h"

using namespace object_menu;

namespace {

// Names in the records fill their fields to the last byte when they are as
// long as the field, so they are read only as far as the field goes.
template <size_t N>
std::string boundedName(char const (&field)[N])
{
    return std::string(field, strnlen(field, N));
}

unsigned char const* nameBytes(std::string const& name)
{
    return reinterpret_cast<unsigned char const*>(name.c_str());
}

PInitiatorID initiatorIdOf(KInitiatorInfo const& info)
{
    PInitiatorID id;
    if (info.isIscsiInitiator())
        id.initIscsiInitiatorID(nameBytes(boundedName(info.iscsi.iscsiName)));
    else
        id.initFcInitiatorID(info.fc.wwpn, sizeof info.fc.wwpn);
    return id;
}

KDeviceID deviceIdOf(KDeviceInfo const& info)
{
    KDeviceID id;
    if (info.isTarget && info.target.isIscsiTarget())
        id.initIscsiDeviceID(nameBytes(boundedName(info.target.iscsi.iscsiName)));
    else if (info.isTarget)
        id.initFcDeviceID(info.target.fc.wwpn, sizeof info.target.fc.wwpn);
    else if (info.initiator.isIscsiInitiator())
        id.initIscsiDeviceID(nameBytes(boundedName(info.initiator.iscsi.iscsiName)));
    else
        id.initFcDeviceID(info.initiator.fc.wwpn, sizeof info.initiator.fc.wwpn);
    return id;
}

// The value of whichever of the two protocol keywords holds one.
std::string eitherKeywordValue(TokenCmd const& cmd, ModifierId::MODIFIER_ID fc, ModifierId::MODIFIER_ID iscsi)
{
    std::string const value = keywordValue(cmd, fc);
    return value.empty() ? keywordValue(cmd, iscsi) : value;
}

std::vector<HTarget*> visibleTargets(HIsaAdapter& adapter)
{
    std::vector<HTarget*> targets;
    for (HTarget* target : adapter.getTargets()->items) {
        if (!target->getTargetInfo()->isInternal())
            targets.push_back(target);
    }
    return targets;
}

std::vector<KDeviceInfo const*> visibleDevices(HIsaAdapter& adapter)
{
    std::vector<KDeviceInfo const*> devices;
    for (HDevice* device : adapter.getDevices()->items) {
        if (!device->getDeviceInfo()->isInternal)
            devices.push_back(device->getDeviceInfo());
    }
    return devices;
}

std::vector<HCluster*> namedClusters()
{
    std::vector<HCluster*> clusters;
    for (HCluster* cluster : g_pHbaMgmtApi->getClusters()->items) {
        if (cluster->getClusterId()->isClusterKeyValid())
            clusters.push_back(cluster);
    }
    return clusters;
}

} // namespace

int object_menu::chooseTarget(TokenCmd& cmd, HIsaAdapter& adapter, bool required, HTarget*& chosen, std::string& line)
{
    chosen = nullptr;
    std::vector<HTarget*> const targets = visibleTargets(adapter);
    if (targets.empty()) {
        menu_console::writeLine("No targets Found");
        return 0;
    }
    Objects objects;
    for (HTarget* target : targets)
        objects.add(oneLine(cmd.getDisplayText_Target(*target->getTargetId())), target->getTargetId()->displayText());
    std::string const current = eitherKeywordValue(cmd, ModifierId::MODIFIER_FC_TARGET, ModifierId::MODIFIER_IS_TARGET);
    Choice const choice = choose(cmd, objects, required, "All Targets", "Choose Target: ", current, line);
    if (choice.code == 0 && choice.index != kAll)
        chosen = targets[choice.index];
    PTargetID const* const id = chosen ? chosen->getTargetId() : nullptr;
    ModifierId::MODIFIER_ID const keyword =
        id && id->isIscsiTargetId() ? ModifierId::MODIFIER_IS_TARGET : ModifierId::MODIFIER_FC_TARGET;
    return storeChoice(cmd, choice, keyword, {ModifierId::MODIFIER_FC_TARGET, ModifierId::MODIFIER_IS_TARGET},
                       id ? id->displayText() : std::string(), line);
}

int TokenCmd::promptForTargetID(bool required, PTargetID& id, std::string& line, std::string& err)
{
    HIsaAdapter* adapter = nullptr;
    if (int const rc = adapterWithFabric(*this, adapter, err))
        return rc;
    HTarget* chosen = nullptr;
    int const rc = chooseTarget(*this, *adapter, required, chosen, line);
    if (chosen)
        id = *chosen->getTargetId();
    return rc;
}

int TokenCmd::promptForInitiatorID(bool required, PInitiatorID& id, std::string& line, std::string& err)
{
    HIsaAdapter* adapter = nullptr;
    if (int const rc = adapterWithFabric(*this, adapter, err))
        return rc;
    std::vector<HInitiator*> const& initiators = adapter->getInitiators()->items;
    if (initiators.empty()) {
        menu_console::writeLine("No initiators Found");
        return 0;
    }
    Objects objects;
    for (HInitiator* initiator : initiators) {
        KInitiatorInfo const& info = *initiator->getInitiatorInfo();
        PInitiatorID const one = initiatorIdOf(info);
        objects.add(oneLine(getDisplayText_Initiator(one, info)), one.displayText());
    }
    std::string const current =
        eitherKeywordValue(*this, ModifierId::MODIFIER_FC_INITIATOR, ModifierId::MODIFIER_IS_INITIATOR);
    Choice const choice = choose(*this, objects, required, "All Initiators", "Choose Initiator: ", current, line);
    KInitiatorInfo const* const info =
        choice.code == 0 && choice.index != kAll ? initiators[choice.index]->getInitiatorInfo() : nullptr;
    if (info)
        id = initiatorIdOf(*info);
    ModifierId::MODIFIER_ID const keyword =
        info && info->isIscsiInitiator() ? ModifierId::MODIFIER_IS_INITIATOR : ModifierId::MODIFIER_FC_INITIATOR;
    return storeChoice(*this, choice, keyword, {ModifierId::MODIFIER_FC_INITIATOR, ModifierId::MODIFIER_IS_INITIATOR},
                       info ? id.displayText() : std::string(), line);
}

int TokenCmd::promptForDeviceID(bool required, KDeviceID& id, std::string& line, std::string& err)
{
    HIsaAdapter* adapter = nullptr;
    if (int const rc = adapterWithFabric(*this, adapter, err))
        return rc;
    std::vector<KDeviceInfo const*> const devices = visibleDevices(*adapter);
    if (devices.empty()) {
        menu_console::writeLine("No devices Found");
        return 0;
    }
    Objects objects;
    for (KDeviceInfo const* device : devices) {
        KDeviceID const one = deviceIdOf(*device);
        objects.add(getDisplayText_Device(one), one.displayText());
    }
    std::string const current =
        eitherKeywordValue(*this, ModifierId::MODIFIER_FC_DEVICE, ModifierId::MODIFIER_IS_DEVICE);
    Choice const choice = choose(*this, objects, required, "All Devices", "Choose Device: ", current, line);
    bool const taken = choice.code == 0 && choice.index != kAll;
    if (taken)
        id = deviceIdOf(*devices[choice.index]);
    ModifierId::MODIFIER_ID const keyword =
        taken && id.isIscsiDeviceId() ? ModifierId::MODIFIER_IS_DEVICE : ModifierId::MODIFIER_FC_DEVICE;
    return storeChoice(*this, choice, keyword, {ModifierId::MODIFIER_FC_DEVICE, ModifierId::MODIFIER_IS_DEVICE},
                       taken ? id.displayText() : std::string(), line);
}

// The clusters come from the scan that the adapter menu made; the pseudo
// cluster of the adapters outside clusters is no choice.
int TokenCmd::promptForClusterID(bool required, KClusterID& id, std::string& line, std::string& /*err*/)
{
    std::vector<HCluster*> const clusters = namedClusters();
    if (clusters.empty()) {
        menu_console::writeLine("This command requires a cluster ID, but no clusters are found on this adapter.");
        return 0;
    }
    Objects objects;
    for (HCluster* cluster : clusters)
        objects.add("-clusterid=" + cluster->getClusterId()->displayText(), cluster->getClusterId()->displayText());
    Choice const choice = choose(*this, objects, required, "All Clusters",
                                 "Choose Cluster: ", keywordValue(*this, ModifierId::MODIFIER_CLUSTERID), line);
    bool const taken = choice.code == 0 && choice.index != kAll;
    if (taken)
        id = *clusters[choice.index]->getClusterId();
    return storeChoice(*this, choice, ModifierId::MODIFIER_CLUSTERID, {ModifierId::MODIFIER_CLUSTERID},
                       taken ? objects.values[choice.index] : std::string(), line);
}

int TokenCmd::promptForDriveID(bool required, KDriveID& id, std::string& line, std::string& err)
{
    HIsaAdapter* adapter = nullptr;
    if (int const rc = adapterWithDrives(*this, adapter, err))
        return rc;
    std::vector<HDrive*> const& drives = adapter->getDrives()->items;
    if (drives.empty()) {
        menu_console::writeLine("No drives Found");
        return 0;
    }
    Objects objects;
    for (HDrive* drive : drives)
        objects.add(getDisplayText_Drive(*drive->getDriveId()), drive->getDriveId()->displayText());
    Choice const choice = choose(*this, objects, required, "All Drives",
                                 "Choose Drive: ", keywordValue(*this, ModifierId::MODIFIER_DRIVE), line);
    bool const taken = choice.code == 0 && choice.index != kAll;
    if (taken)
        id = *drives[choice.index]->getDriveId();
    return storeChoice(*this, choice, ModifierId::MODIFIER_DRIVE, {ModifierId::MODIFIER_DRIVE},
                       taken ? objects.values[choice.index] : std::string(), line);
}
