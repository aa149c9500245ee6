// The five stages that fill a chosen command's keywords in menu mode, in the
// order the session calls them, the last of which runs the command.
#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "interactive/MenuCodes.h"
#include "interactive/MenuConsole.h"
#include "records/PUniqueID.h"

namespace {

constexpr size_t kFlagNameWidth = 10;
constexpr size_t kOptionNameWidth = 15;

std::vector<TokenModifierString*> keywordsOf(TokenCmd& cmd)
{
    std::vector<TokenModifierString*> keywords;
    for (Token* child : cmd.children) {
        if (child->tokenType == Token::TOKEN_TYPE_MODIFIER)
            keywords.push_back(static_cast<TokenModifierString*>(child));
    }
    return keywords;
}

void showLine(std::string const& line)
{
    menu_console::write("\n\n" + line + "\n\n");
}

std::string paddedTo(std::string text, size_t width)
{
    if (text.size() < width)
        text.append(width - text.size(), ' ');
    return text;
}

bool isOneOf(ModifierId::MODIFIER_ID id, std::initializer_list<ModifierId::MODIFIER_ID> ids)
{
    for (ModifierId::MODIFIER_ID const one : ids) {
        if (id == one)
            return true;
    }
    return false;
}

// ---- flags ------------------------------------------------------------------

std::string flagEntry(TokenModifierString const& flag)
{
    return paddedTo("-" + flag.name, kFlagNameWidth) +
        (flag.value.empty() ? " [ ]  (not selected)" : " [X]  (Selected)");
}

void deselect(TokenModifierString& flag)
{
    flag.value.clear();
    flag.initDefaultFlag();
}

// Of the port's connection modes and of the NVDIMM actions only one may be
// chosen, so choosing one drops the others of its trio.
void deselectExclusivePartners(std::vector<TokenModifierString*> const& flags, ModifierId::MODIFIER_ID chosen)
{
    static std::initializer_list<ModifierId::MODIFIER_ID> const connectionModes = {
        ModifierId::MODIFIER_LOOP_ONLY, ModifierId::MODIFIER_AUTO, ModifierId::MODIFIER_P2P_ONLY};
    static std::initializer_list<ModifierId::MODIFIER_ID> const nvdimmActions = {
        ModifierId::MODIFIER_DISARM, ModifierId::MODIFIER_ERASE, ModifierId::MODIFIER_UPDATE};
    for (auto const& trio : {connectionModes, nvdimmActions}) {
        if (!isOneOf(chosen, trio))
            continue;
        for (TokenModifierString* flag : flags) {
            if (isOneOf(flag->modifierId, trio))
                deselect(*flag);
        }
    }
}

void toggleFlag(std::vector<TokenModifierString*> const& flags, TokenModifierString& flag)
{
    if (!flag.value.empty()) {
        deselect(flag);
        return;
    }
    deselectExclusivePartners(flags, flag.modifierId);
    // A blank is how a chosen flag is told from one left out.
    flag.setValue(" ");
}

// ---- optional keywords ------------------------------------------------------

bool isOfferedAsOption(TokenModifierString const& keyword)
{
    return keyword.requiredKind == TokenModifier::OPTIONAL && keyword.valueKind != TokenModifier::VALUE_NONE &&
        !isOneOf(keyword.modifierId,
                 {ModifierId::MODIFIER_AGENT, ModifierId::MODIFIER_ZEK, ModifierId::MODIFIER_CLUSTERID,
                  ModifierId::MODIFIER_DRIVE}) &&
        !keyword.isTargetRelated() && !keyword.isInitiatorRelated() && !keyword.isLunRelated() &&
        !keyword.isDeviceRelated();
}

std::string optionEntry(TokenModifierString const& keyword)
{
    std::string const entry = "-" + keyword.name;
    if (keyword.value.empty() || keyword.isDefault)
        return entry;
    return paddedTo(entry, kOptionNameWidth) + "[ " + keyword.value + " ]";
}

} // namespace

// Several keywords can name one LUN, target, device or initiator; one
// prompt asks for the object and writes whichever keyword names it.
int TokenCmd::interactivePromptForModifiersThatSpanMultipleKeywords(std::string& line, std::string& err)
{
    bool any = false;
    bool required = false;
    bool unusedNumberOrTarget = false;
    bool unusedWwuln = false;
    bool unusedSerial = false;
    testLunRelatedModifiers(any, required, unusedNumberOrTarget, unusedWwuln, unusedSerial);
    if (any) {
        showLine(line);
        if (item == CmdItem::ITEM_TARGET) {
            PTargetID target;
            return promptForTargetID(required, target, line, err);
        }
        PLunID lun;
        return promptForLunID(required, lun, line, err);
    }
    testDeviceRelatedModifiers(any, required);
    if (any) {
        KDeviceID device;
        return promptForDeviceID(required, device, line, err);
    }
    testInitiatorRelatedModifiers(any, required);
    if (any) {
        PInitiatorID initiator;
        return promptForInitiatorID(required, initiator, line, err);
    }
    return 0;
}

// A cluster left unchosen is no reason to stop: the command's own checks
// tell whether it needs one.
int TokenCmd::interactivePromptForModifiersThatSelectFromList(std::string& line, std::string& err)
{
    for (TokenModifierString* keyword : keywordsOf(*this)) {
        bool const required = keyword->requiredKind == TokenModifier::REQUIRED;
        if (keyword->modifierId == ModifierId::MODIFIER_CLUSTERID) {
            showLine(line);
            KClusterID cluster;
            promptForClusterID(required, cluster, line, err);
        } else if (keyword->modifierId == ModifierId::MODIFIER_DRIVE) {
            showLine(line);
            KDriveID drive;
            if (int const rc = promptForDriveID(required, drive, line, err))
                return rc;
        }
    }
    return 0;
}

int TokenCmd::interactivePromptForModifiersThatHaveNoParamData(std::string& line, std::string& /*err*/)
{
    std::vector<TokenModifierString*> flags;
    for (TokenModifierString* keyword : keywordsOf(*this)) {
        if (keyword->valueKind == TokenModifier::VALUE_NONE)
            flags.push_back(keyword);
    }
    if (flags.empty())
        return 0;
    showLine(line);
    for (;;) {
        std::vector<std::string> entries;
        for (TokenModifierString const* flag : flags)
            entries.push_back(flagEntry(*flag));
        entries.push_back("Continue using these selections");
        int const continueIndex = static_cast<int>(flags.size());
        int const selection = getMenuSelection(entries, continueIndex, "Select: ", line);
        if (selection < 0)
            return menuControlFromSelection(selection);
        if (selection == continueIndex)
            break;
        toggleFlag(flags, *flags[selection]);
    }
    for (TokenModifierString* flag : flags) {
        if (!flag->value.empty()) {
            flag->isDefault = false;
            line += " -" + flag->name;
        }
    }
    return 0;
}

// LUN and target keywords were asked for as one object already; -agent and
// -zek by their own menus.
int TokenCmd::interactivePromptForRequiredModifiers(std::string& line, std::string& err)
{
    for (TokenModifierString* keyword : keywordsOf(*this)) {
        if (keyword->requiredKind != TokenModifier::REQUIRED ||
            isOneOf(keyword->modifierId, {ModifierId::MODIFIER_AGENT, ModifierId::MODIFIER_ZEK}) ||
            keyword->isTargetRelated() || keyword->isLunRelated())
            continue;
        showLine(line);
        if (int const rc = promptForModifier(keyword, true, line, err))
            return rc;
    }
    return 0;
}

int TokenCmd::interactivePromptForOptionalModifiersAndExecute(std::string& line, std::string& err)
{
    for (;;) {
        std::vector<TokenModifierString*> options;
        std::vector<std::string> entries;
        for (TokenModifierString* keyword : keywordsOf(*this)) {
            if (isOfferedAsOption(*keyword)) {
                options.push_back(keyword);
                entries.push_back(optionEntry(*keyword));
            }
        }
        entries.push_back("Execute");
        int const executeIndex = static_cast<int>(options.size());
        if (executeIndex == 0)
            break;
        int const selection =
            getMenuSelection(entries, executeIndex, "Choose an optional input, or <Enter> to execute: ", line);
        if (selection < 0)
            return menuControlFromSelection(selection);
        if (selection == executeIndex)
            break;
        if (int const rc = promptForModifier(options[selection], false, line, err))
            return rc;
    }
    menu_console::write("\nzekcli " + line + "\n\n");
    return execCommand(err);
}
