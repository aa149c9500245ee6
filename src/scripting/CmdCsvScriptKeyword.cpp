#include "scripting/CmdCsvScriptKeyword.h"

#include <utility>

CmdCsvScriptKeyword::CmdCsvScriptKeyword(ModifierId::MODIFIER_ID id, KEYWORD_VALUE_TYPE valueType, std::string value)
    : id(id), valueType(valueType), value(std::move(value))
{}
