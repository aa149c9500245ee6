// What the prompts for one object (target, LUN, initiator, device, cluster,
// drive) share: the menu with its optional "All" entry, and the writing of
// the choice into the command's keywords and the command line shown.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "core/ModifierId.h"

class HIsaAdapter;
class HTarget;
class TokenCmd;

namespace object_menu {

// Entries and the keyword value each stands for, in menu order.
struct Objects {
    std::vector<std::string> entries;
    std::vector<std::string> values;
    void add(std::string const& entry, std::string const& value);
};

// What was made of the menu: a control code (0 when an entry was taken)
// and the index of the object, or kAll.
constexpr int kAll = -1;
struct Choice {
    int code = 0;
    int index = kAll;
};

// The menu of the objects, plus `allEntry` when the object may be left out.
// The object whose value the keyword holds is the default entry.
Choice choose(TokenCmd& cmd, Objects const& objects, bool required, std::string const& allEntry,
              std::string const& prompt, std::string const& currentValue, std::string const& line);

// The value a keyword of the command holds now; empty when it has none.
std::string keywordValue(TokenCmd const& cmd, ModifierId::MODIFIER_ID id);
// Sets a keyword as if typed, and shows it on the command line.
void setKeyword(TokenCmd& cmd, ModifierId::MODIFIER_ID id, std::string const& value, std::string& line);
// Leaves a keyword out again, with no value.
void clearKeyword(TokenCmd& cmd, ModifierId::MODIFIER_ID id);
// Writes what was chosen: every keyword of the family is left out, then the
// chosen one takes `value` unless "All" was chosen. The control code of the
// choice, or 0.
int storeChoice(TokenCmd& cmd, Choice const& choice, ModifierId::MODIFIER_ID chosen,
                std::initializer_list<ModifierId::MODIFIER_ID> family, std::string const& value, std::string& line);

// The adapter that -zek names now, with its targets, initiators and devices, or its drives,
// asked of it anew. A partial answer is told and used; a failure is the
// result, with its words in `err`.
int adapterWithFabric(TokenCmd& cmd, HIsaAdapter*& adapter, std::string& err);
int adapterWithDrives(TokenCmd& cmd, HIsaAdapter*& adapter, std::string& err);

// The menu of the targets that the adapter sees, its own internal ones left
// out as in the target lists. The choice goes into -fc_target or -is_target;
// `chosen` stays null for "All Targets" or when there is nothing to choose.
int chooseTarget(TokenCmd& cmd, HIsaAdapter& adapter, bool required, HTarget*& chosen, std::string& line);

// A label of several lines as one menu line.
std::string oneLine(std::string const& label);

} // namespace object_menu
