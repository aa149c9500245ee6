// Turning the LUN keywords of a command line into LUN paths. A LUN may be
// named by target and number, by WWULN, by Page 0x80 serial number, or by
// either name without saying which; the user may leave parts out. The
// adapter is asked only as much as the keywords leave open, and every
// refusal echoes what was asked for, so a script's log shows which LUN failed.
#include <algorithm>
#include <cstdlib>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "records/KLunInfo.h"
#include "records/KTargetInfo.h"
#include "records/PUniqueID.h"

namespace {

// A name converted to bytes (a WWULN typed as hexadecimal) fits here.
constexpr unsigned long kBinaryNameBytes = 64;
// The name index's own protocol for a scan of one target.
constexpr uint32_t kScanFirst = 0;
constexpr uint32_t kScanLast = 100;

// The keywords of one of the two parallel sets: the LUN itself, or the
// destination LUN of a command that addresses two.
struct LunKeywordSet {
    explicit LunKeywordSet(bool destination)
        : prefix(destination ? "dmdest_" : ""),
          number(destination ? ModifierId::MODIFIER_DMDEST_LUN_NUMBER : ModifierId::MODIFIER_LUN_NUMBER),
          index(destination ? ModifierId::MODIFIER_DMDEST_VPGINDEX : ModifierId::MODIFIER_VPGINDEX),
          wwuln(destination ? ModifierId::MODIFIER_DMDEST_LUN_WWULN : ModifierId::MODIFIER_LUN_WWULN),
          serial(destination ? ModifierId::MODIFIER_DMDEST_LUN_SERIAL : ModifierId::MODIFIER_LUN_SERIAL),
          anyName(destination ? ModifierId::MODIFIER_DMDEST_LUN_ANY_WWULN : ModifierId::MODIFIER_LUN_ANY_WWULN)
    {}
    std::string prefix;
    ModifierId::MODIFIER_ID number;
    ModifierId::MODIFIER_ID index;
    ModifierId::MODIFIER_ID wwuln;
    ModifierId::MODIFIER_ID serial;
    ModifierId::MODIFIER_ID anyName;
};

// " -<prefix><name>=<value>", the form in which keywords are echoed.
std::string echo(std::string const& prefix, std::string const& name, std::string const& value)
{
    return " -" + prefix + name + "=" + value;
}

long numberOrDefault(std::string const& value, long fallback)
{
    return value.empty() ? fallback : std::strtol(value.c_str(), nullptr, 10);
}

bool contains(std::vector<PLunID> const& luns, PLunID const& lun)
{
    return std::find(luns.begin(), luns.end(), lun) != luns.end();
}

// Fills the adapter's targets and their LUNs afresh. Partial success leaves
// its note in `err` and goes on with what was gathered.
bool gatherTargetsAndLuns(HIsaAdapter& adapter, std::string& err)
{
    MHbaReturnBuffer firstError;
    e_MHBA_RETURN const gathered = adapter.getTargetsAndInitiators(&firstError);
    if (gathered == MHBA_S_PARTIAL_SUCCESS) {
        err = "getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
            firstError.displayText() + "\n";
    } else if (gathered != MHBA_S_OK) {
        err = "getTargetsAndInitiators returned:  " + g_pHbaMgmtApi->returnCodeToText(gathered);
        return false;
    }
    for (HTarget* target : adapter.getTargets()->items) {
        MHbaReturnBuffer lunError;
        e_MHBA_RETURN const listed = adapter.getLunsForSpecificTarget(target, &lunError);
        if (listed != MHBA_S_OK) {
            err = "getLunsForSpecificTarget returned:  " + g_pHbaMgmtApi->returnCodeToText(listed);
            return false;
        }
    }
    return true;
}

template <typename Visit>
void forEachLunPath(HLunIdList* list, Visit visit)
{
    if (!list)
        return;
    uint32_t const count = list->count();
    for (uint32_t i = 0; i < count; ++i)
        if (PLunID const* const lun = list->at(i))
            visit(*lun);
}

// What the keywords of one set say about target, number and index.
struct LunSelection {
    PTargetID target;
    bool targetGiven = false;
    int lunNumber = 0;
    bool numberGiven = false;
    std::string numberText;
    int vpgIndex = 1;
    bool indexGiven = false;
    std::string indexText;

    bool matchesAll(PLunID const& lun) const
    {
        return (!targetGiven || lun.targetID() == target) && (!numberGiven || lun.lunNumber() == lunNumber) &&
            (!indexGiven || lun.vpgIndex() == vpgIndex);
    }
    // Inclusive on purpose: any one given part that matches keeps the path.
    bool matchesAny(PLunID const& lun) const
    {
        return (targetGiven && lun.targetID() == target) || (numberGiven && lun.lunNumber() == lunNumber) ||
            (indexGiven && lun.vpgIndex() == vpgIndex);
    }
};

void searchAdapterLuns(HIsaAdapter& adapter, LunSelection const& selection, std::vector<PLunID>& luns)
{
    for (HTarget* target : adapter.getTargets()->items)
        forEachLunPath(target->getLunIds(), [&](PLunID const& lun) {
            if (selection.matchesAll(lun))
                luns.push_back(lun);
        });
}

// A name and a number (or index) that disagree are refused rather than
// quietly narrowed.
bool checkAgreement(std::vector<PLunID> const& luns, LunSelection const& selection, std::string const& prefix,
                    std::string& err)
{
    if (luns.empty())
        return true;
    if (selection.numberGiven)
        for (PLunID const& lun : luns)
            if (lun.lunNumber() != selection.lunNumber) {
                err = "-" + prefix + "lun_number=" + selection.numberText +
                    " conflicts with other LUN Identifiers in the input";
                return false;
            }
    if (selection.indexGiven)
        for (PLunID const& lun : luns)
            if (lun.vpgIndex() != selection.vpgIndex) {
                err = "-" + prefix + "vpgindex=" + selection.indexText +
                    " conflicts with other LUN Identifiers in the input";
                return false;
            }
    return true;
}

// Paths of one WWULN are one LUN: an online path stands for it, else the first.
void collapseToOnePath(HIsaAdapter& adapter, std::vector<PLunID>& luns)
{
    HTargetCollection* const targets = adapter.getTargets();
    for (PLunID const& lun : luns) {
        HTarget* const target = targets->find(lun.targetID());
        KTargetInfo const* const info = target ? target->getTargetInfo() : nullptr;
        if (info && info->isOnline()) {
            PLunID const chosen = lun;
            luns.assign(1, chosen);
            return;
        }
    }
    luns.resize(1);
}

bool nameTypeScanned(HIsaAdapter& adapter, HLunNameIndex& index, PBase::LUN_NAME_TYPE type, PTargetID const& target)
{
    if (!target.isEmpty())
        return index.lookup(type, target);
    for (HTarget* known : adapter.getTargets()->items)
        if (PTargetID const* const id = known->getTargetId(); id && index.lookup(type, *id))
            return true;
    return false;
}

// Makes sure the adapter has read the names of this type, for one target or
// for all of them.
bool scanNameType(HIsaAdapter& adapter, HLunNameIndex& index, PBase::LUN_NAME_TYPE type, PTargetID const& target,
                  std::string& err)
{
    if (nameTypeScanned(adapter, index, type, target))
        return true;
    if (adapter.getTargets()->items.empty() && !gatherTargetsAndLuns(adapter, err))
        return false;
    e_MHBA_RETURN const scanned =
        target.isEmpty() ? index.scanAll(type) : index.scanTarget(type, target, kScanFirst, kScanLast);
    if (scanned == MHBA_E_NOT_SUPPORTED) {
        err = "Use of " + PBase::lunNameTypeToText(type) + " to identify LUNs is not supported on this ZEK";
        return false;
    }
    if (scanned != MHBA_S_OK) {
        err = "Error attempting to find LUN using " + PBase::lunNameTypeToText(type) + ", (" +
            std::to_string(static_cast<int>(scanned)) + ")";
        return false;
    }
    return true;
}

} // namespace

bool TokenCmd::getLunIdFromCommandLine(HIsaAdapter* adapter, bool bDestination, bool bOneLunRequired,
                                       std::vector<PLunID>& luns, std::string& err)
{
    luns.clear();
    LunKeywordSet const keywords(bDestination);
    TokenModifierString* const numberKeyword = findModifier(keywords.number, err);
    if (!numberKeyword)
        return false;
    TokenModifierString* const indexKeyword = findModifier(keywords.index, err);
    if (!indexKeyword)
        return false;

    LunSelection selection;
    selection.numberText = numberKeyword->value;
    selection.lunNumber = static_cast<int>(numberOrDefault(numberKeyword->value, 0));
    selection.numberGiven = !numberKeyword->isDefault;
    selection.indexText = indexKeyword->value;
    selection.vpgIndex = static_cast<int>(numberOrDefault(indexKeyword->value, 1));
    selection.indexGiven = !indexKeyword->isDefault;

    if (!getTargetIdFromCommandLineModifiers(bDestination, selection.target, selection.targetGiven, err))
        return false;
    if (selection.target.isEmpty()) {
        err = "Target not found";
        return false;
    }
    // Always the plain keyword: here it only tells whether paths of one
    // name were asked for.
    TokenModifierString* const wwulnKeyword = findModifier(ModifierId::MODIFIER_LUN_WWULN, err);
    if (!wwulnKeyword)
        return false;

    std::string displayText;
    bool nameGiven = false;
    if (!getLunIdListForLunNameFromCommandLine(adapter, bDestination, nameGiven, luns, displayText, err))
        return false;

    if (!nameGiven) {
        if (selection.targetGiven)
            displayText += echo(keywords.prefix, selection.target.isFcTargetId() ? "fc_target" : "is_target",
                                selection.target.displayText());
        if (selection.numberGiven)
            displayText += echo(keywords.prefix, "lun_number", selection.numberText);
        if (selection.indexGiven)
            displayText += echo(keywords.prefix, "vpgindex", selection.indexText);

        if (bOneLunRequired && !selection.numberGiven) {
            if (bDestination)
                err = "Destination ";
            else
                err += " LUN number is required for ";
            err += "LUN:  \"" + displayText + "\"";
            return false;
        }

        // iSCSI knows no path groups.
        bool const iscsi = selection.targetGiven && selection.target.isIscsiTargetId();
        if (iscsi)
            selection.vpgIndex = 1;
        // A fully specified LUN needs no question to the adapter.
        if (selection.targetGiven && selection.numberGiven && (iscsi || selection.indexGiven)) {
            PLunID lun;
            lun.initLunID(selection.target, selection.lunNumber, PBase::convertIntToVpIndex(selection.vpgIndex));
            luns.push_back(lun);
        } else {
            adapter->clearLuns();
            adapter->clearTargets();
            if (!gatherTargetsAndLuns(*adapter, err))
                return false;
            searchAdapterLuns(*adapter, selection, luns);
        }
    }

    if (!checkAgreement(luns, selection, keywords.prefix, err))
        return false;

    if (bOneLunRequired) {
        bool const anyPartGiven = selection.targetGiven || selection.numberGiven || selection.indexGiven;
        if (luns.size() >= 2 && nameGiven && anyPartGiven)
            std::erase_if(luns, [&](PLunID const& lun) { return !selection.matchesAny(lun); });
        if (luns.size() >= 2 && !wwulnKeyword->isDefault)
            collapseToOnePath(*adapter, luns);

        if (luns.empty()) {
            if (bDestination)
                err = "Destination";
            err += " LUN not found for \"" + displayText + "\"";
            return false;
        }
        if (luns.size() >= 2) {
            err = "Multiple Luns found for " + displayText + "\n";
            for (PLunID const& lun : luns)
                err += "    " + getDisplayText_Lun(lun, bDestination) + "\n";
            return false;
        }
        return true;
    }

    if (luns.empty()) {
        err += "No LUNs found";
        if (!displayText.empty())
            err += " for " + displayText;
        err += "\n";
    }
    return true;
}

bool TokenCmd::getLunIdListForLunNameFromCommandLine(HIsaAdapter* adapter, bool bDestination, bool& bNameGiven,
                                                     std::vector<PLunID>& luns, std::string& displayText,
                                                     std::string& err)
{
    luns.clear();
    bNameGiven = false;
    PTargetID target;
    bool targetGiven = false;
    if (!getTargetIdFromCommandLineModifiers(bDestination, target, targetGiven, err))
        return false;
    // Without a target the names are looked up on every target.
    if (!targetGiven)
        target.init();

    LunKeywordSet const keywords(bDestination);
    TokenModifierString* const serial = findModifier(keywords.serial, err);
    if (!serial)
        return false;
    TokenModifierString* const wwuln = findModifier(keywords.wwuln, err);
    if (!wwuln)
        return false;
    TokenModifierString* const anyName = findModifier(keywords.anyName, err);
    if (!anyName)
        return false;

    int const given = int{!serial->isDefault} + int{!wwuln->isDefault} + int{!anyName->isDefault};
    if (given == 0)
        return true;
    bNameGiven = true;
    if (given > 1) {
        err = "Cannot use more than one of -lun_wwuln, -lun_serial, or -lun_any_wwuln";
        return false;
    }

    if (!wwuln->isDefault &&
        !getLunIdListForOneLunNameType(adapter, wwuln->value, PBase::LUN_NAME_WWULN, target, luns, err))
        return false;
    if (!serial->isDefault &&
        !getLunIdListForOneLunNameType(adapter, serial->value, PBase::LUN_NAME_SERIAL_NUMBER, target, luns, err))
        return false;
    if (!anyName->isDefault) {
        // Either kind of name will do; why each try failed is of no interest.
        std::string ignored;
        bool found =
            getLunIdListForOneLunNameType(adapter, anyName->value, PBase::LUN_NAME_WWULN, target, luns, ignored) &&
            !luns.empty();
        if (!found)
            found = getLunIdListForOneLunNameType(adapter, anyName->value, PBase::LUN_NAME_SERIAL_NUMBER, target, luns,
                                                  ignored) &&
                !luns.empty();
        if (!found) {
            err = "No LUN found for name \"" + anyName->value + "\"";
            return false;
        }
    }

    displayText.clear();
    if (!serial->isDefault)
        displayText += echo(keywords.prefix, "lun_serial", serial->value);
    if (!wwuln->isDefault)
        displayText += echo(keywords.prefix, "lun_wwuln", wwuln->value);
    return true;
}

bool TokenCmd::getLunIdListForOneLunNameType(HIsaAdapter* adapter, std::string const& name, PBase::LUN_NAME_TYPE type,
                                             PTargetID const& target, std::vector<PLunID>& luns, std::string& err)
{
    HLunNameIndex* const index = adapter->getLunNameIndex();
    if (!index) {
        err = "Use of " + PBase::lunNameTypeToText(type) + " to identify LUNs is not supported on this ZEK";
        return false;
    }
    if (!scanNameType(*adapter, *index, type, target, err))
        return false;

    bool const wwulnName = type == PBase::LUN_NAME_WWULN;
    PLunsForOneNameID textKey;
    if (!textKey.initLunsForOneNameID(type, name)) {
        err = (wwulnName ? "Supplied WWULN is too long:  \"" : "Supplied serial number is too long:  \"") + name + "\"";
        return false;
    }
    // An adapter may have registered a WWULN as bytes rather than as text.
    PLunsForOneNameID binaryKey;
    bool hasBinaryKey = false;
    unsigned char bytes[kBinaryNameBytes];
    unsigned int count = 0;
    if (wwulnName && PBase::textToWwname(count, bytes, sizeof bytes, name)) {
        if (!binaryKey.initLunsForOneNameIDFromBinaryData(type, bytes, static_cast<int>(count))) {
            err = "Binary data for converted WWULN is too long:  \"" + name + "\"";
            return false;
        }
        hasBinaryKey = true;
    }

    HLunIdList* entry = index->findLuns(textKey);
    if (!entry && hasBinaryKey)
        entry = index->findLuns(binaryKey);
    if (!entry) {
        err = "LUN not found for \"" + textKey.displayText() + "\"";
        return false;
    }
    forEachLunPath(entry, [&](PLunID const& lun) {
        if (!contains(luns, lun))
            luns.push_back(lun);
    });
    return true;
}

bool TokenCmd::filterLunIdListToOnePerMulipathLun(HIsaAdapter* adapter, std::vector<PLunID>& luns, std::string& err)
{
    if (luns.empty()) {
        err += " One LUN must be specified.";
        return false;
    }
    if (luns.size() == 1)
        return true;

    // The first path is kept whenever one identity results, so it need not
    // be looked at.
    std::vector<KWwulnLunID> identities;
    HLunCollection* const collection = adapter->getLuns();
    for (size_t i = 1; i < luns.size(); ++i) {
        HLun* const lun = collection->find(luns[i]);
        if (!lun) {
            err += " Specified LUN not found --> " + luns[i].displayText();
            return false;
        }
        KLunInfo* info = lun->getLunInfo();
        if (!info || !info->isLunInfoValid()) {
            if (g_pHbaMgmtApi->isFailure(lun->refreshLunInfo()))
                return false;
            info = lun->getLunInfo();
        }
        // Only data LUNs count: a controller LUN on the same path is no
        // second LUN.
        if (!info || !info->isLunInfoValid() || info->eLunType() != KLunInfo::LUN_TYPE_DIRECT_ACCESS)
            continue;
        KWwulnLunID identity;
        int const length = static_cast<int>(std::min<uint32_t>(info->ui32WwulnLength, sizeof info->ui8Wwuln));
        identity.initWwulnLunID(info->eWwulnCodeSet, length, info->ui8Wwuln);
        if (std::find(identities.begin(), identities.end(), identity) == identities.end())
            identities.push_back(identity);
    }

    if (identities.empty()) {
        err = "No SAN data LUN specified";
        return false;
    }
    if (identities.size() == 1) {
        luns.resize(1);
        return true;
    }
    err = "Multiple SAN LUNs specified, but this command can only be applied to one LUN.";
    for (KWwulnLunID const& identity : identities)
        err += "\n-lun_wwuln=" + identity.displayText();
    err += "\n";
    return false;
}

namespace {

// Walks the command's own keywords that `related` picks out.
template <typename Visit>
void forEachRelatedKeyword(std::vector<Token*> const& children, bool (TokenModifierString::*related)() const,
                           Visit visit)
{
    for (Token* child : children) {
        if (child->tokenType != Token::TOKEN_TYPE_MODIFIER)
            continue;
        TokenModifierString const& keyword = *static_cast<TokenModifierString const*>(child);
        if ((keyword.*related)())
            visit(keyword);
    }
}

void testRelatedModifiers(std::vector<Token*> const& children, bool (TokenModifierString::*related)() const, bool& bAny,
                          bool& bRequired)
{
    bAny = bRequired = false;
    forEachRelatedKeyword(children, related, [&](TokenModifierString const& keyword) {
        bAny = true;
        if (keyword.requiredKind == TokenModifier::REQUIRED)
            bRequired = true;
    });
}

} // namespace

void TokenCmd::testLunRelatedModifiers(bool& bAny, bool& bRequired, bool& bNumberOrTarget, bool& bWwuln,
                                       bool& bSerial) const
{
    testRelatedModifiers(children, &TokenModifierString::isLunRelated, bAny, bRequired);
    bNumberOrTarget = bWwuln = bSerial = false;
    forEachRelatedKeyword(children, &TokenModifierString::isLunRelated, [&](TokenModifierString const& keyword) {
        if (keyword.value.empty())
            return;
        switch (keyword.modifierId) {
        case ModifierId::MODIFIER_FC_TARGET:
        case ModifierId::MODIFIER_IS_TARGET:
        case ModifierId::MODIFIER_LUN_NUMBER:
        case ModifierId::MODIFIER_VPGINDEX:
            bNumberOrTarget = true;
            break;
        case ModifierId::MODIFIER_LUN_ANY_WWULN:
        case ModifierId::MODIFIER_LUN_WWULN:
            bWwuln = true;
            break;
        case ModifierId::MODIFIER_LUN_SERIAL:
            bSerial = true;
            break;
        default:
            break;
        }
    });
    // Caching is always about one LUN, whatever the keywords' own flags say.
    if ((action == CmdAction::ACTION_ENABLE || action == CmdAction::ACTION_DISABLE) && item == CmdItem::ITEM_CACHE)
        bRequired = true;
}

void TokenCmd::testTargetRelatedModifiers(bool& bAny, bool& bRequired) const
{
    testRelatedModifiers(children, &TokenModifierString::isTargetRelated, bAny, bRequired);
}

void TokenCmd::testInitiatorRelatedModifiers(bool& bAny, bool& bRequired) const
{
    testRelatedModifiers(children, &TokenModifierString::isInitiatorRelated, bAny, bRequired);
}

void TokenCmd::testDeviceRelatedModifiers(bool& bAny, bool& bRequired) const
{
    testRelatedModifiers(children, &TokenModifierString::isDeviceRelated, bAny, bRequired);
}

void TokenCmd::setDefaultLunModifiers()
{
    for (ModifierId::MODIFIER_ID const id : {ModifierId::MODIFIER_FC_TARGET, ModifierId::MODIFIER_IS_TARGET,
                                             ModifierId::MODIFIER_LUN_WWULN, ModifierId::MODIFIER_LUN_SERIAL}) {
        std::string ignored;
        if (TokenModifierString* const keyword = findModifier(id, ignored)) {
            keyword->setValue(std::string());
            keyword->isDefault = true;
        }
    }
}
