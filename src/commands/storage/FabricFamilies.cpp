#include "commands/storage/FabricFamilies.h"

#include "api/HbaMgmtInterfaces.h"
#include "core/TokenCmd.h"

namespace {

// An iSCSI name as the identifiers take it: the text of a record's field,
// which needs no terminating zero of its own.
unsigned char const* nameBytes(std::string const& text)
{
    return reinterpret_cast<unsigned char const*>(text.c_str());
}

constexpr int kWwpnBytes = 8;

} // namespace

PInitiatorID initiatorIdOf(KInitiatorInfo const& info)
{
    PInitiatorID id;
    if (info.isIscsiInitiator())
        id.initIscsiInitiatorID(nameBytes(PBase::charFieldToText(info.iscsi.iscsiName)));
    else if (info.isFcInitiator())
        id.initFcInitiatorID(info.fc.wwpn, kWwpnBytes);
    return id;
}

KDeviceID deviceIdOf(KDeviceInfo const& info)
{
    // A device that is both is named by its target side; both sides carry
    // the same port name.
    KDeviceID id;
    if (info.isTarget && info.target.isIscsiTarget())
        id.initIscsiDeviceID(nameBytes(PBase::charFieldToText(info.target.iscsi.iscsiName)));
    else if (info.isTarget && info.target.isFcTarget())
        id.initFcDeviceID(info.target.fc.wwpn, kWwpnBytes);
    else if (info.isInitiator && info.initiator.isIscsiInitiator())
        id.initIscsiDeviceID(nameBytes(PBase::charFieldToText(info.initiator.iscsi.iscsiName)));
    else if (info.isInitiator && info.initiator.isFcInitiator())
        id.initFcDeviceID(info.initiator.fc.wwpn, kWwpnBytes);
    return id;
}

// ---- targets ---------------------------------------------------------------

std::vector<TargetFamily::Entry> TargetFamily::entries(HIsaAdapter& adapter)
{
    std::vector<Entry> all;
    for (HTarget* target : adapter.getTargets()->items) {
        PTargetID const* const id = target ? target->getTargetId() : nullptr;
        KTargetInfo const* const info = target ? target->getTargetInfo() : nullptr;
        if (id && info)
            all.push_back(Entry{*id, *info});
    }
    return all;
}

KTargetInfo const* TargetFamily::find(HIsaAdapter& adapter, PTargetID const& id)
{
    HTarget* const target = adapter.getTargets()->find(id);
    return target ? target->getTargetInfo() : nullptr;
}

bool TargetFamily::readId(TokenCmd& cmd, PTargetID& id, bool& found, std::string& err)
{
    return cmd.getTargetIdFromCommandLineModifiers(false, id, found, err);
}

std::string TargetFamily::listLine(TokenCmd const& cmd, Entry const& entry)
{
    return cmd.getDisplayText_Target(entry.id);
}

std::string TargetFamily::showLabel(TokenCmd const& cmd, Entry const& entry)
{
    return listLine(cmd, entry);
}

// ---- initiators ------------------------------------------------------------

void InitiatorFamily::clear(HIsaAdapter& adapter)
{
    adapter.clearInitiators();
}

std::vector<InitiatorFamily::Entry> InitiatorFamily::entries(HIsaAdapter& adapter)
{
    std::vector<Entry> all;
    for (HInitiator* initiator : adapter.getInitiators()->items) {
        KInitiatorInfo const* const info = initiator ? initiator->getInitiatorInfo() : nullptr;
        if (info)
            all.push_back(Entry{initiatorIdOf(*info), *info});
    }
    return all;
}

KInitiatorInfo const* InitiatorFamily::find(HIsaAdapter& adapter, PInitiatorID const& id)
{
    HInitiator* const initiator = adapter.getInitiators()->find(id);
    return initiator ? initiator->getInitiatorInfo() : nullptr;
}

bool InitiatorFamily::readId(TokenCmd& cmd, PInitiatorID& id, bool& found, std::string& err)
{
    return cmd.getInitiatorIdFromCommandLineModifiers(id, found, err);
}

std::string InitiatorFamily::listLine(TokenCmd const&, Entry const& entry)
{
    // The keyword that names the initiator, as its full label starts.
    return (entry.info.isIscsiInitiator() ? "-is_initiator=" : "-fc_initiator=") + entry.id.displayText() + "\n";
}

std::string InitiatorFamily::showLabel(TokenCmd const& cmd, Entry const& entry)
{
    // The record's own text starts with its heading, which needs a line of
    // its own after the label's names.
    return cmd.getDisplayText_Initiator(entry.id, entry.info) + "\n";
}

// ---- devices ---------------------------------------------------------------

void DeviceFamily::clear(HIsaAdapter& adapter)
{
    adapter.clearDevices();
}

std::vector<DeviceFamily::Entry> DeviceFamily::entries(HIsaAdapter& adapter)
{
    std::vector<Entry> all;
    for (HDevice* device : adapter.getDevices()->items) {
        KDeviceInfo const* const info = device ? device->getDeviceInfo() : nullptr;
        if (info)
            all.push_back(Entry{deviceIdOf(*info), *info});
    }
    return all;
}

KDeviceInfo const* DeviceFamily::find(HIsaAdapter& adapter, KDeviceID const& id)
{
    HDevice* const device = adapter.getDevices()->find(id);
    return device ? device->getDeviceInfo() : nullptr;
}

bool DeviceFamily::readId(TokenCmd& cmd, KDeviceID& id, bool& found, std::string& err)
{
    return cmd.getDeviceIdFromCommandLineModifiers(id, found, err);
}

std::string DeviceFamily::listLine(TokenCmd const& cmd, Entry const& entry)
{
    return cmd.getDisplayText_Device(entry.id) + "\n";
}

std::string DeviceFamily::showLabel(TokenCmd const& cmd, Entry const& entry)
{
    return listLine(cmd, entry);
}
