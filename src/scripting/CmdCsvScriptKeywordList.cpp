#include "scripting/CmdCsvScriptKeywordList.h"

CmdCsvScriptKeywordList::CmdCsvScriptKeywordList()
{
    for (int column = CmdCsvScriptKeyword::CSV_A; column <= CmdCsvScriptKeyword::CSV_Z; ++column)
        add(static_cast<CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE>(column),
            std::string("csv_") + static_cast<char>('a' + column));
}

CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE CmdCsvScriptKeywordList::valFromExactText(std::string const& text,
                                                                                  std::string& err) const
{
    err.clear();
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i] == text)
            return static_cast<CmdCsvScriptKeyword::KEYWORD_VALUE_TYPE>(i);
    }
    err = "Exact match not found for " + text;
    return CmdCsvScriptKeyword::LITERAL_VALUE;
}
