// One keyword of the line that "script csv" turns into commands: copied to
// every command as typed, or replaced by a column of the row.
#pragma once

#include <string>

#include "core/ModifierId.h"

class CmdCsvScriptKeyword {
public:
    // 0 to 25 are the columns a to z; the rest a value copied as typed.
    enum KEYWORD_VALUE_TYPE : int {
        CSV_A = 0,
        CSV_Z = 25,
        LITERAL_VALUE = 26,
    };

    CmdCsvScriptKeyword() = default;
    CmdCsvScriptKeyword(ModifierId::MODIFIER_ID id, KEYWORD_VALUE_TYPE valueType, std::string value);

    bool isColumn() const { return valueType >= CSV_A && valueType <= CSV_Z; }
    unsigned column() const { return static_cast<unsigned>(valueType - CSV_A); }

    ModifierId::MODIFIER_ID id = ModifierId::MODIFIER_NONE;
    KEYWORD_VALUE_TYPE valueType = LITERAL_VALUE;
    std::string value;
};
