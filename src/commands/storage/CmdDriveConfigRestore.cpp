#include "commands/storage/CmdDriveConfigRestore.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include <cstdlib>

#include "api/HIsaAdapter.h"
#include "commands/CommandPattern.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_RESTORE, CmdItem::ITEM_DRIVE_CONFIG, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_OWNER, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdDriveConfigRestore::CmdDriveConfigRestore()
{
    declareCommand(*this, rows);
    helpTitle = "Restore Drive_Config";
    helpDescription =
        "Takes over the drive configuration that another adapter left on the drives, for example after the "
        "adapter has been replaced.";
    helpSyntax = "\t-owner=<adapter id>\n" + adapterSyntax();
    helpModifiers = "-owner=<adapter id>\n"
                    "\tIdentifier of the adapter that owned the drives, in hexadecimal.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -owner=2000001B32A1B2C3";
}

namespace {

// The code for an -owner value that is not a hexadecimal number; it comes
// without words of its own.
constexpr int kOwnerNotHexadecimal = 169;

} // namespace

int CmdDriveConfigRestore::execCommand(std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    err.clear();
    TokenModifierString const* const owner = findModifier(ModifierId::MODIFIER_OWNER, err);
    if (!owner)
        return ZEKCLI_PARSE_FAIL;
    char const* const text = owner->value.c_str();
    char* end = nullptr;
    unsigned long long const ownerId = std::strtoull(text, &end, 16);
    if (*end != '\0')
        return kOwnerNotHexadecimal;

    if (int const rc = addressed.adapter->restoreDriveConfig(ownerId))
        return rc;
    CommandReport report;
    report.text = "Configuration restored successfully\n";
    return finishCommand(*this, addressed.adapter, report, err);
}
