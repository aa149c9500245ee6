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

// The objects of a collection with their records; an object without a
// record has nothing to show and is left out.
template <typename Entry, typename Element, typename Info, typename NameOf>
std::vector<Entry> entriesOf(std::vector<Element*> const& items, Info* (Element::*recordOf)(), NameOf nameOf)
{
    std::vector<Entry> all;
    for (Element* element : items) {
        Info const* const info = element ? (element->*recordOf)() : nullptr;
        if (info)
            all.push_back(Entry{nameOf(*element, *info), *info});
    }
    return all;
}

// The record of the object that a collection holds under `id`, or null.
template <typename Collection, typename Id, typename Element, typename Info>
Info const* recordFound(Collection* collection, Id const& id, Info* (Element::*recordOf)())
{
    Element* const element = collection->find(id);
    return element ? (element->*recordOf)() : nullptr;
}

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
    return entriesOf<Entry>(adapter.getTargets()->items, &HTarget::getTargetInfo,
                            [](HTarget& target, KTargetInfo const&) {
                                PTargetID const* const id = target.getTargetId();
                                return id ? *id : PTargetID();
                            });
}

KTargetInfo const* TargetFamily::find(HIsaAdapter& adapter, PTargetID const& id)
{
    return recordFound(adapter.getTargets(), id, &HTarget::getTargetInfo);
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
    return entriesOf<Entry>(adapter.getInitiators()->items, &HInitiator::getInitiatorInfo,
                            [](HInitiator&, KInitiatorInfo const& info) { return initiatorIdOf(info); });
}

KInitiatorInfo const* InitiatorFamily::find(HIsaAdapter& adapter, PInitiatorID const& id)
{
    return recordFound(adapter.getInitiators(), id, &HInitiator::getInitiatorInfo);
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
    return entriesOf<Entry>(adapter.getDevices()->items, &HDevice::getDeviceInfo,
                            [](HDevice&, KDeviceInfo const& info) { return deviceIdOf(info); });
}

KDeviceInfo const* DeviceFamily::find(HIsaAdapter& adapter, KDeviceID const& id)
{
    return recordFound(adapter.getDevices(), id, &HDevice::getDeviceInfo);
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
