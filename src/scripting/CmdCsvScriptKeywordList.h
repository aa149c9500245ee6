// The words "csv_a" to "csv_z" that stand for the columns of a row.
#pragma once

#include <string>

#include "core/EnumStrList.h"
#include "scripting/CmdCsvScriptKeyword.h"

class CmdCsvScriptKeywordList : public EnumStrList<CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE> {
public:
    CmdCsvScriptKeywordList();

    // Only the whole word counts: "csv_" or "csv_aa" are values of their own
    // and must not become a column by abbreviation. Without a match the
    // result is LITERAL_VALUE and `err` says why.
    CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE valFromExactText(std::string const& text, std::string& err) const;
};
