#include "commands/lun/CmdLunModify.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/LunLookup.h"
#include "commands/lun/LunSettings.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_MODIFY, CmdItem::ITEM_LUN, TokenCmd::GROUP_LUN_CONFIG),
    keywordRow(ModifierId::MODIFIER_SIZE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_REMOVE_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    LUN_SELECTOR_ROWS,
    endRow(),
};

// The largest LUN the adapter can present: 1000 gigabytes.
constexpr unsigned long long kLargestLunBytes = 0xFA00000000ull;
constexpr long long kLargestLunGigabytes = static_cast<long long>(kLargestLunBytes >> 30);

// An SSD LUN that another adapter presents through this one is that
// adapter's to change; a thin-provisioning controller LUN is not such a LUN.
bool belongsToAnotherAdapter(KLunInfo const& info)
{
    return info.isLunState(KLunInfo::LUN_STATE_STORAGE_MEDIA_SSD) && info.isLunState(KLunInfo::LUN_STATE_REMOTE) &&
        !info.isLunState(KLunInfo::LUN_STATE_TP_CONTROLLER_LUN);
}

} // namespace

CmdLunModify::CmdLunModify()
{
    declareCommand(*this, rows);
    helpTitle = "Modify LUN";
    helpDescription = "Grows, renames or changes the mirror of a data LUN of the adapter.";
    helpSyntax = "\t[-size=<GB>]\n"
                 "\t[-name=<name>]\n"
                 "\t[-mirror=<adapter>]\n"
                 "\t[-remove_mirror]\n" +
        lunSelectorSyntax() + "\n" + adapterSyntax();
    helpModifiers = "-size=<GB>\n"
                    "\tNew size of the LUN in whole gigabytes, 1 to 1000.\n"
                    "-name=<name>\n"
                    "\tNew symbolic name of the LUN, up to 64 characters.\n"
                    "-mirror=<adapter>\n"
                    "\tAdapter that keeps a mirror of the LUN, in any form that -zek accepts.\n"
                    "-remove_mirror\n"
                    "\tRemove the mirror of the LUN.\n" +
        lunSelectorHelp() + "\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -size=200 -lun_number=1 -fc_target=5006-0160-3BE0-1234" +
        ugCommandPrompt() + "-zek=0 -remove_mirror -lun_number=1 -fc_target=5006-0160-3BE0-1234";
    helpNotes = "Exactly one LUN must be selected. Size and name cannot be changed together with the\n"
                "mirror, and -mirror and -remove_mirror cannot be combined.";
}

int CmdLunModify::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    std::vector<PLunID> ids;
    if (int const rc = findAdapterAndLuns(*this, addressed, true, ids, err))
        return rc;
    if (int const rc = checkLunTargetKeywords(*this, err))
        return rc;
    PLunID const lun = ids.front();

    HLun* const held = findLunObject(*addressed.adapter, lun, LunGathering::PathTarget);
    if (!held) {
        err.clear();
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    int const refreshed = held->getLunInfo()->isLunInfoValid() ? 0 : held->refreshLunInfo();
    if (refreshed != 0) {
        err.clear();
        return refreshed;
    }
    KLunInfo const info = *held->getLunInfo();
    if (belongsToAnotherAdapter(info)) {
        err.clear();
        return MHBA_E_LUN_NOT_APPLICABLE;
    }

    LunChange change;
    if (int const rc = readChange(info, change, err))
        return rc;
    // Naming the mirror may have scanned again, which renews the library's objects.
    HIsaAdapter* const adapter = g_pHbaMgmtApi->getAdapters()->find(addressed.path);
    if (!adapter)
        return MHBA_E_ADAPTER_NOT_IN_COLLECTION;
    CommandOutput out(*this);
    if (!out.banner(adapter))
        return out.end(0, err);
    // The adapter's refusal is told by its code alone.
    err.clear();

    int rc = 0;
    if (change.size)
        rc = adapter->modifyLun(lun, gigabytesToBytes(change.gigabytes), change.newName);
    else if (change.name)
        rc = adapter->modifyLun(lun, info.ui64LunSizeBytes, change.newName);
    else if (change.mirror)
        rc = adapter->setLunMirror(lun, kMirrorTypeMirror, change.mirrorAdapter);
    else
        rc = adapter->setLunMirror(lun, kMirrorTypeNone, change.mirrorAdapter);
    if (g_pHbaMgmtApi->isFailure(rc))
        return rc;

    out.line("Successfully modified LUN  " + lun.targetID().displayText() +
             " -lun_number=" + PBase::numberToText(lun.lunNumber()) + "\n");
    out.result(rc);
    return out.end(0, err);
}

int CmdLunModify::readChange(KLunInfo const& info, LunChange& change, std::string& err)
{
    TokenModifierString const* const size = findModifier(ModifierId::MODIFIER_SIZE, err);
    if (!size)
        return ZEKCLI_PARSE_FAIL;
    change.size = keywordGiven(size);
    change.gigabytes = static_cast<long long>(info.ssdLunInfo.ui64SizeBytes >> 30);
    if (change.size && !size->value.empty())
        change.gigabytes = decimalValue(size->value);
    if (change.size && change.gigabytes < 1) {
        err = "Size of new LUN must be at least 1GB";
        return ZEKCLI_PARSE_FAIL;
    }
    if (change.size && change.gigabytes > kLargestLunGigabytes) {
        err = "Insufficient storage resources -- size of new LUN must be " +
            PBase::longlongToMByteText(kLargestLunBytes) + " or less";
        return ZEKCLI_PARSE_FAIL;
    }

    TokenModifierString const* const name = findModifier(ModifierId::MODIFIER_NAME, err);
    if (!name)
        return ZEKCLI_PARSE_FAIL;
    change.name = keywordGiven(name);
    change.newName = change.name ? name->value : PBase::charFieldToText(info.ssdLunInfo.szSymbolicName);

    TokenModifierString const* const mirror = findModifier(ModifierId::MODIFIER_MIRROR, err);
    if (!mirror)
        return ZEKCLI_PARSE_FAIL;
    change.mirror = keywordGiven(mirror);
    if (change.mirror && mirror->value.empty()) {
        err = "-mirror requires a value";
        return ZEKCLI_PARSE_FAIL;
    }
    KIsaAdapterPath mirrorPath;
    if (int const rc = selectAdapterFromKeyword(ModifierId::MODIFIER_MIRROR, mirrorPath, err))
        return rc;
    change.mirrorAdapter = mirrorPath.isaHbaId();

    TokenModifierString const* const removeMirror = findModifier(ModifierId::MODIFIER_REMOVE_MIRROR, err);
    if (!removeMirror)
        return ZEKCLI_PARSE_FAIL;
    change.removeMirror = keywordGiven(removeMirror);
    return checkCombination(change, err);
}

int CmdLunModify::checkCombination(LunChange const& change, std::string& err)
{
    if (change.mirror && change.removeMirror) {
        err += "-mirror and -remove_mirror keywords cannot be combined";
        return ZEKCLI_PARSE_FAIL;
    }
    bool const sizeOrName = change.size || change.name;
    bool const mirrorChange = change.mirror || change.removeMirror;
    if (!sizeOrName && !mirrorChange) {
        err = "No change specified for the LUN.  Use -size=... or -name=... if you want to modify the specified LUN.";
        return ZEKCLI_PARSE_FAIL;
    }
    // The adapter applies the two kinds of change by different operations.
    if (sizeOrName && mirrorChange) {
        err = "Not allow changing LUN (size, name) and mirror at the same time.";
        return ZEKCLI_PARSE_FAIL;
    }
    return 0;
}
