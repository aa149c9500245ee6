#include "commands/lun/CmdLunCreate.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "commands/lun/LunSettings.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterPath.h"
#include "records/PUniqueID.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_CREATE, CmdItem::ITEM_LUN, TokenCmd::GROUP_LUN_CONFIG),
    keywordRow(ModifierId::MODIFIER_SIZE, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    keywordRow(ModifierId::MODIFIER_MIRROR, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdLunCreate::CmdLunCreate()
{
    declareCommand(*this, rows);
    helpTitle = "Create LUN";
    helpDescription = "Creates a data LUN on the SSD drives of the adapter, optionally mirrored on a second adapter.";
    helpSyntax = "\t-size=<GB>\n"
                 "\t[-name=<name>]\n"
                 "\t[-mirror=<adapter>]\n" +
        adapterSyntax();
    helpModifiers = "-size=<GB>\n"
                    "\tSize of the new LUN in whole gigabytes, at least 1.\n"
                    "-name=<name>\n"
                    "\tSymbolic name of the new LUN, up to 64 characters.\n"
                    "-mirror=<adapter>\n"
                    "\tAdapter that keeps a mirror of the LUN, in any form that -zek accepts.\n" +
        adapterHelp();
    helpExamples =
        ugCommandPrompt() + "-zek=0 -size=100 -name=datalun1" + ugCommandPrompt() + "-zek=0 -size=100 -mirror=1";
}

int CmdLunCreate::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;

    TokenModifierString const* const size = findModifier(ModifierId::MODIFIER_SIZE, err);
    if (!size)
        return ZEKCLI_PARSE_FAIL;
    long long const gigabytes = decimalValue(size->value);
    if (gigabytes < 1) {
        err = "Size of new LUN must be at least 1GB";
        return ZEKCLI_PARSE_FAIL;
    }
    TokenModifierString const* const name = findModifier(ModifierId::MODIFIER_NAME, err);
    if (!name)
        return ZEKCLI_PARSE_FAIL;
    std::string const lunName = keywordGiven(name) ? name->value : std::string();
    TokenModifierString const* const mirror = findModifier(ModifierId::MODIFIER_MIRROR, err);
    if (!mirror)
        return ZEKCLI_PARSE_FAIL;
    if (keywordGiven(mirror) && mirror->value.empty()) {
        err = "-mirror requires a value";
        return ZEKCLI_PARSE_FAIL;
    }
    // Without -mirror this names the default adapter, whose identifier the
    // library ignores for an unmirrored LUN.
    KIsaAdapterPath mirrorPath;
    if (int const rc = selectAdapterFromKeyword(ModifierId::MODIFIER_MIRROR, mirrorPath, err))
        return rc;
    int const mirrorType = keywordGiven(mirror) ? kMirrorTypeMirror : kMirrorTypeNone;
    // Naming the mirror may have scanned again, which renews the library's adapters.
    HIsaAdapter* const adapter = g_pHbaMgmtApi->getAdapters()->find(addressed.path);
    if (!adapter)
        return MHBA_E_ADAPTER_NOT_IN_COLLECTION;

    KWwulnLunID created;
    if (int const rc =
            adapter->createLun(gigabytesToBytes(gigabytes), lunName, mirrorType, mirrorPath.isaHbaId(), created))
        return rc;
    CommandReport report;
    report.text = "LUN created successfully,  -lun_wwuln=" + created.displayText() + "\n\n";
    return finishCommand(*this, adapter, report, err);
}
