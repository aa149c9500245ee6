#include "interactive/ObjectMenu.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandPattern.h"
#include "core/TokenCmd.h"
#include "interactive/MenuCodes.h"
#include "interactive/MenuConsole.h"

namespace object_menu {

void Objects::add(std::string const& entry, std::string const& value)
{
    entries.push_back(entry);
    values.push_back(value);
}

namespace {

int indexOfValue(std::vector<std::string> const& values, std::string const& value)
{
    if (value.empty())
        return 0;
    for (size_t i = 0; i < values.size(); ++i) {
        if (values[i] == value)
            return static_cast<int>(i);
    }
    return 0;
}

TokenModifierString* keyword(TokenCmd const& cmd, ModifierId::MODIFIER_ID id)
{
    std::string unused;
    return cmd.findModifier(id, unused);
}

} // namespace

Choice choose(TokenCmd& cmd, Objects const& objects, bool required, std::string const& allEntry,
              std::string const& prompt, std::string const& currentValue, std::string const& line)
{
    std::vector<std::string> entries = objects.entries;
    if (!required)
        entries.push_back(allEntry);
    int const selection = cmd.getMenuSelection(entries, indexOfValue(objects.values, currentValue),
                                               (required ? "[Required] " : "") + prompt, line);
    if (selection < 0 || static_cast<size_t>(selection) >= entries.size())
        return {menuControlFromSelection(selection), kAll};
    if (static_cast<size_t>(selection) >= objects.values.size())
        return {0, kAll};
    return {0, selection};
}

std::string keywordValue(TokenCmd const& cmd, ModifierId::MODIFIER_ID id)
{
    TokenModifierString const* const token = keyword(cmd, id);
    return token ? token->value : std::string();
}

void setKeyword(TokenCmd& cmd, ModifierId::MODIFIER_ID id, std::string const& value, std::string& line)
{
    TokenModifierString* const token = keyword(cmd, id);
    if (!token)
        return;
    token->setValue(value);
    line += " -" + token->name + "=" + value;
}

void clearKeyword(TokenCmd& cmd, ModifierId::MODIFIER_ID id)
{
    TokenModifierString* const token = keyword(cmd, id);
    if (!token)
        return;
    token->value.clear();
    token->initDefaultFlag();
}

int storeChoice(TokenCmd& cmd, Choice const& choice, ModifierId::MODIFIER_ID chosen,
                std::initializer_list<ModifierId::MODIFIER_ID> family, std::string const& value, std::string& line)
{
    if (choice.code != 0)
        return choice.code;
    for (ModifierId::MODIFIER_ID const id : family)
        clearKeyword(cmd, id);
    if (choice.index != kAll)
        setKeyword(cmd, chosen, value, line);
    return 0;
}

namespace {

// What a gathering operation answered: a partial answer is told and used.
int gathered(e_MHBA_RETURN rc, MHbaReturnBuffer const& firstError, std::string const& operation, std::string& err)
{
    if (rc == MHBA_S_PARTIAL_SUCCESS) {
        menu_console::writeLine(operation + "() returned partial success.  At least one attempt to get info returned " +
                                firstError.displayText());
        return 0;
    }
    if (rc != MHBA_S_OK)
        err = operation + " returned:  " + g_pHbaMgmtApi->returnCodeToText(rc);
    return rc;
}

using Gathering = e_MHBA_RETURN (HIsaAdapter::*)(MHbaReturnBuffer*);

int adapterGathering(TokenCmd& cmd, Gathering gathering, std::string const& operation, HIsaAdapter*& adapter,
                     std::string& err)
{
    AddressedAdapter addressed;
    int const rc = findAddressedAdapter(cmd, addressed, err);
    adapter = addressed.adapter;
    if (rc != 0)
        return rc;
    MHbaReturnBuffer firstError;
    return gathered((adapter->*gathering)(&firstError), firstError, operation, err);
}

} // namespace

int adapterWithFabric(TokenCmd& cmd, HIsaAdapter*& adapter, std::string& err)
{
    return adapterGathering(cmd, &HIsaAdapter::getTargetsAndInitiators, "getTargetsAndInitiators", adapter, err);
}

int adapterWithDrives(TokenCmd& cmd, HIsaAdapter*& adapter, std::string& err)
{
    return adapterGathering(cmd, &HIsaAdapter::getDrivesWithErrorDetails, "getDrivesWithErrorDetails", adapter, err);
}

std::string oneLine(std::string const& label)
{
    std::string out;
    bool atBreak = false;
    for (char const c : label) {
        if (c == '\n') {
            atBreak = true;
            continue;
        }
        if (atBreak && c == ' ')
            continue;
        if (atBreak && !out.empty())
            out += ' ';
        atBreak = false;
        out += c;
    }
    return out;
}

} // namespace object_menu
