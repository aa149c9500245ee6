// The LUN prompt: first how the LUN is to be named (serial number, WWULN,
// or target and LUN number), then the LUN itself from what the adapter sees.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "core/TokenCmd.h"
#include "interactive/MenuCodes.h"
#include "interactive/MenuConsole.h"
#include "interactive/ObjectMenu.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

using namespace object_menu;

namespace {

enum LUN_NAMING : int {
    NAMING_SERIAL = 0,
    NAMING_WWULN = 1,
    NAMING_TARGET = 2,
    NAMING_ALL = 3,
};

// One menu of LUN names, each with the first path that bears it.
struct NamedLuns {
    Objects names;
    std::vector<PLunID> firstPaths;

    void addOnce(std::string const& entry, std::string const& value, PLunID const& path)
    {
        if (value.empty() || std::find(names.values.begin(), names.values.end(), value) != names.values.end())
            return;
        names.add(entry, value);
        firstPaths.push_back(path);
    }
};

struct LunsSeen {
    size_t pathCount = 0;
    NamedLuns byWwuln;
    NamedLuns bySerial;
};

int gatherLunsOfEveryTarget(HIsaAdapter& adapter, std::string& err)
{
    for (HTarget* target : adapter.getTargets()->items) {
        MHbaReturnBuffer firstError;
        e_MHBA_RETURN const rc = adapter.getLunsForSpecificTarget(target, &firstError);
        if (rc != MHBA_S_OK) {
            err = "getLunsForSpecificTarget returned:  " + g_pHbaMgmtApi->returnCodeToText(rc);
            return rc;
        }
    }
    return 0;
}

std::vector<PLunID> pathsOf(HTarget& target)
{
    std::vector<PLunID> paths;
    HLunIdList* const ids = target.getLunIds();
    for (uint32_t i = 0; ids && i < ids->count(); ++i) {
        if (PLunID const* const id = ids->at(i))
            paths.push_back(*id);
    }
    return paths;
}

KLunInfo const* lunInfo(HIsaAdapter& adapter, PLunID const& path)
{
    HLun* const lun = adapter.getLuns()->find(path);
    if (!lun)
        return nullptr;
    if (!lun->getLunInfo()->isLunInfoValid() && g_pHbaMgmtApi->isFailure(lun->refreshLunInfo()))
        return nullptr;
    return lun->getLunInfo();
}

void addNames(TokenCmd const& cmd, KLunInfo const& info, PLunID const& path, LunsSeen& seen)
{
    int const wwulnLength = static_cast<int>(std::min<uint32_t>(info.ui32WwulnLength, sizeof info.ui8Wwuln));
    std::string const wwulnBytes(reinterpret_cast<char const*>(info.ui8Wwuln), wwulnLength);
    std::string const wwuln =
        PBase::wwulnToText(reinterpret_cast<unsigned char const*>(wwulnBytes.c_str()), wwulnLength, info.eWwulnCodeSet);
    seen.byWwuln.addOnce(cmd.getDisplayText_Wwname(info.ui8Wwuln, wwulnLength, info.eWwulnCodeSet, "lun_wwuln", false),
                         wwuln, path);
    size_t const serialLength = std::min<size_t>(info.ui32Page80SerialLength, sizeof info.szPage80Serial);
    std::string const serial(info.szPage80Serial, strnlen(info.szPage80Serial, serialLength));
    seen.bySerial.addOnce("-lun_serial=\"" + serial + "\"", serial, path);
}

LunsSeen lunsSeen(TokenCmd const& cmd, HIsaAdapter& adapter)
{
    LunsSeen seen;
    for (HTarget* target : adapter.getTargets()->items) {
        for (PLunID const& path : pathsOf(*target)) {
            ++seen.pathCount;
            if (KLunInfo const* const info = lunInfo(adapter, path))
                addNames(cmd, *info, path, seen);
        }
    }
    return seen;
}

// Whichever way the LUN is named now, the other LUN keywords must not
// contradict it, so all of them are left out before the choice is written.
void clearLunKeywords(TokenCmd& cmd)
{
    for (Token* child : cmd.children) {
        if (child->tokenType != Token::TOKEN_TYPE_MODIFIER)
            continue;
        auto* const keyword = static_cast<TokenModifierString*>(child);
        if (keyword->isLunRelated()) {
            keyword->value.clear();
            keyword->initDefaultFlag();
        }
    }
}

int namingInUse(TokenCmd const& cmd)
{
    if (!keywordValue(cmd, ModifierId::MODIFIER_LUN_WWULN).empty())
        return NAMING_WWULN;
    if (!keywordValue(cmd, ModifierId::MODIFIER_FC_TARGET).empty() ||
        !keywordValue(cmd, ModifierId::MODIFIER_IS_TARGET).empty())
        return NAMING_TARGET;
    return NAMING_SERIAL;
}

int chooseByName(TokenCmd& cmd, NamedLuns const& luns, bool required, std::string const& prompt,
                 ModifierId::MODIFIER_ID keyword, PLunID& id, std::string& line)
{
    if (luns.names.entries.empty()) {
        menu_console::writeLine("No LUNs Found");
        return 0;
    }
    Choice const choice = choose(cmd, luns.names, required, "All LUNs", prompt, keywordValue(cmd, keyword), line);
    if (choice.code != 0)
        return choice.code;
    clearLunKeywords(cmd);
    if (choice.index != kAll) {
        setKeyword(cmd, keyword, luns.names.values[choice.index], line);
        id = luns.firstPaths[choice.index];
    }
    return 0;
}

// The numbers of the target's LUNs, each once, with its first path.
NamedLuns lunNumbersOf(HTarget& target)
{
    NamedLuns numbers;
    for (PLunID const& path : pathsOf(target)) {
        std::string const number = std::to_string(path.lunNumber());
        numbers.addOnce("LUN " + number, number, path);
    }
    return numbers;
}

int chooseByTarget(TokenCmd& cmd, HIsaAdapter& adapter, bool required, PLunID& id, std::string& line)
{
    std::string const currentNumber = keywordValue(cmd, ModifierId::MODIFIER_LUN_NUMBER);
    clearLunKeywords(cmd);
    HTarget* target = nullptr;
    if (int const rc = chooseTarget(cmd, adapter, true, target, line); rc != 0 || !target)
        return rc;
    std::string const targetText = target->getTargetId()->displayText();
    NamedLuns const numbers = lunNumbersOf(*target);
    if (numbers.names.entries.empty()) {
        menu_console::writeLine("This command requires a LUN input, but no LUNs were found for target " + targetText);
        return 0;
    }
    Choice const choice =
        choose(cmd, numbers.names, required, "All LUNs for target " + targetText, "Choose LUN: ", currentNumber, line);
    if (choice.code != 0)
        return choice.code;
    if (choice.index != kAll) {
        setKeyword(cmd, ModifierId::MODIFIER_LUN_NUMBER, numbers.names.values[choice.index], line);
        id = numbers.firstPaths[choice.index];
    }
    return 0;
}

} // namespace

int TokenCmd::promptForLunID(bool required, PLunID& id, std::string& line, std::string& err)
{
    HIsaAdapter* adapter = nullptr;
    if (int const rc = adapterWithFabric(*this, adapter, err))
        return rc;
    if (int const rc = gatherLunsOfEveryTarget(*adapter, err))
        return rc;
    LunsSeen const seen = lunsSeen(*this, *adapter);
    if (seen.pathCount == 0) {
        menu_console::writeLine("No LUNs Found");
        return 0;
    }
    std::vector<std::string> ways = {"-lun_serial", "-lun_wwuln", "-fc_target"};
    if (!required)
        ways.push_back("All LUNs");
    int const way =
        getMenuSelection(ways, namingInUse(*this), "Please choose how you would like to specifiy a LUN: ", line);
    switch (way) {
    case NAMING_SERIAL:
        return chooseByName(*this, seen.bySerial, required,
                            "Choose LUN by serial number: ", ModifierId::MODIFIER_LUN_SERIAL, id, line);
    case NAMING_WWULN:
        return chooseByName(*this, seen.byWwuln, required, "Choose WWULN: ", ModifierId::MODIFIER_LUN_WWULN, id, line);
    case NAMING_TARGET:
        return chooseByTarget(*this, *adapter, required, id, line);
    case NAMING_ALL:
        if (!required) {
            clearLunKeywords(*this);
            return 0;
        }
        [[fallthrough]];
    default:
        return menuControlFromSelection(way);
    }
}
