// The prompts for one keyword: free text, a word from the command's own
// list, or the address of a remote agent. Each writes the answer into the
// keyword's token, as the parser would, and grows the command line shown.
#include <string>
#include <vector>

#include "api/HbaMgmtApi.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "interactive/KeywordChoices.h"
#include "interactive/MenuCodes.h"
#include "interactive/MenuConsole.h"
#include "records/PIpAddress.h"

namespace {

// "~" is the placeholder some keywords start with; it is no value to offer.
bool holdsValue(TokenModifierString const& token)
{
    return !token.value.empty() && token.value != "~";
}

bool isRequired(TokenModifierString const& token)
{
    return token.requiredKind == TokenModifier::REQUIRED;
}

std::string stringPrompt(TokenModifierString const& token)
{
    std::string prompt = isRequired(token) ? "[Required] " : "";
    if (holdsValue(token))
        return prompt + "Enter a new value or use <enter> to continue [-" + token.name + "=" + token.value + "]: ";
    return prompt + "Enter a value for -" + token.name + "= ";
}

// An empty answer keeps the old value as given, or leaves the keyword out.
void takeStringAnswer(TokenModifierString& token, std::string const& answer)
{
    if (!answer.empty())
        token.setValue(answer);
    else if (holdsValue(token))
        token.isDefault = false;
    else
        token.initDefaultFlag();
}

bool isFreeTextKeyword(ModifierId::MODIFIER_ID id)
{
    switch (id) {
    case ModifierId::MODIFIER_APPEND:
    case ModifierId::MODIFIER_CACHE:
    case ModifierId::MODIFIER_CHAP_ENABLE:
    case ModifierId::MODIFIER_CHAP_SECRET:
    case ModifierId::MODIFIER_CLUSTERID:
    case ModifierId::MODIFIER_CMD:
    case ModifierId::MODIFIER_COMPARE:
    case ModifierId::MODIFIER_CSV_DELIMITER:
    case ModifierId::MODIFIER_CSV_FILE:
    case ModifierId::MODIFIER_CSV_FOLDER:
    case ModifierId::MODIFIER_DEMONSTRATION_FILE:
    case ModifierId::MODIFIER_EXEC_THROTTLE:
    case ModifierId::MODIFIER_FC_LINK_RATE:
    case ModifierId::MODIFIER_FC_PORT:
    case ModifierId::MODIFIER_FILEPATH:
    case ModifierId::MODIFIER_FIND:
    case ModifierId::MODIFIER_INTERVAL:
    case ModifierId::MODIFIER_ISCSI_NAME:
    case ModifierId::MODIFIER_MAX_CACHE:
    case ModifierId::MODIFIER_MAX_OUTSTANDING_IO:
    case ModifierId::MODIFIER_MAX_READ:
    case ModifierId::MODIFIER_MAX_WRITE:
    case ModifierId::MODIFIER_MEMBER:
    case ModifierId::MODIFIER_MIN_READ:
    case ModifierId::MODIFIER_MIN_WRITE:
    case ModifierId::MODIFIER_MIRROR:
    case ModifierId::MODIFIER_NAME:
    case ModifierId::MODIFIER_NEXT:
    case ModifierId::MODIFIER_OFFSET:
    case ModifierId::MODIFIER_OWNER:
    case ModifierId::MODIFIER_PORT:
    case ModifierId::MODIFIER_PREVIOUS:
    case ModifierId::MODIFIER_PRIMARY:
    case ModifierId::MODIFIER_PW:
    case ModifierId::MODIFIER_RV:
    case ModifierId::MODIFIER_SECONDARY:
    case ModifierId::MODIFIER_SECONDS:
    case ModifierId::MODIFIER_SIZE:
    case ModifierId::MODIFIER_TIME:
    case ModifierId::MODIFIER_WWNN:
    case ModifierId::MODIFIER_WWPN:
        return true;
    default:
        return false;
    }
}

bool isWordListKeyword(ModifierId::MODIFIER_ID id)
{
    switch (id) {
    case ModifierId::MODIFIER_BASEPOS:
    case ModifierId::MODIFIER_HOST_CLUSTER_TYPE:
    case ModifierId::MODIFIER_MODE:
    case ModifierId::MODIFIER_PROFILE:
    case ModifierId::MODIFIER_RESET_TYPE:
    case ModifierId::MODIFIER_SEVERITY:
        return true;
    default:
        return false;
    }
}

// Asks until the address parses or the answer is empty (no agent after all).
int promptForAgent(TokenModifierString& token, bool required, std::string& line, std::string& err)
{
    std::string const label = required ? "[Required]" : "[Optional]";
    for (;;) {
        menu_console::write(label + "Please enter an IP address: ");
        std::string answer;
        if (!menu_console::readAnswer(answer) || (!answer.empty() && answer[0] == 'q'))
            return MENU_CONTROL_QUIT;
        if (answer.empty())
            return 0;
        PIpAddress address;
        if (g_pHbaMgmtApi->textToIpAddress(answer, address, err)) {
            token.setValue(answer);
            line += " -agent=" + answer;
            return 0;
        }
        menu_console::writeLine(err);
        err.clear();
    }
}

} // namespace

// The end of input quits, as "q" would on a required keyword: asking again
// could never be answered.
int TokenCmd::promptForString(TokenModifierString* token, std::string& line, std::string& /*err*/)
{
    if (!token)
        return 0;
    for (;;) {
        menu_console::write(stringPrompt(*token));
        std::string answer;
        if (!menu_console::readAnswer(answer))
            return MENU_CONTROL_QUIT;
        if (answer == "q" && isRequired(*token))
            return MENU_CONTROL_QUIT;
        takeStringAnswer(*token, answer);
        if (holdsValue(*token) || !isRequired(*token))
            break;
    }
    line += " -" + token->name + "=" + token->value;
    return 0;
}

// Without a list of words on the command the keyword is asked for as text.
int TokenCmd::promptForEnum(TokenModifierString* token, std::string& line, std::string& err)
{
    if (!token)
        return 0;
    std::vector<std::string> const* words = keywordChoices(*this, token->modifierId);
    if (!words || words->empty())
        return promptForString(token, line, err);
    std::vector<std::string> entries;
    int defaultIndex = 1;
    for (size_t i = 0; i < words->size(); ++i) {
        entries.push_back("-" + token->name + "=" + (*words)[i]);
        if ((*words)[i] == token->value)
            defaultIndex = static_cast<int>(i);
    }
    std::string const prompt = std::string(isRequired(*token) ? "[Required] " : "") + "Select: ";
    int const selection = getMenuSelection(entries, defaultIndex, prompt, line);
    if (selection < 0 || static_cast<size_t>(selection) >= entries.size())
        return menuControlFromSelection(selection);
    token->setValue((*words)[selection]);
    line += " " + entries[selection];
    return 0;
}

// Keywords that no prompt knows (line numbers, passwords, the NVDIMM
// actions) are not asked for; the command's own checks speak for them.
int TokenCmd::promptForModifier(TokenModifierString* token, bool required, std::string& line, std::string& err)
{
    if (!token)
        return 0;
    ModifierId::MODIFIER_ID const id = token->modifierId;
    if (isFreeTextKeyword(id))
        return promptForString(token, line, err);
    if (isWordListKeyword(id))
        return promptForEnum(token, line, err);
    if (id == ModifierId::MODIFIER_AGENT)
        return promptForAgent(*token, required, line, err);
    return 0;
}
