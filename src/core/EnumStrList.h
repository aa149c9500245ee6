// An ordered table of lowercase words whose positions are the numeric values
// of an enumeration. The numbers end up in files, so entries are only ever
// appended, never moved.
#pragma once

#include <string>
#include <vector>

#include "core/TextRules.h"

template <typename T>
class EnumStrList {
public:
    // The position decides the value; `value` only documents the caller's
    // intent, so rows must be added in order from 0.
    void add(T value, std::string const& text)
    {
        (void)value;
        list.push_back(lowerCaseCopy(text));
    }

    std::string textFromVal(T value) const
    {
        long long const index = static_cast<long long>(value);
        if (index < 0 || index >= static_cast<long long>(list.size()))
            return std::string();
        return list[static_cast<size_t>(index)];
    }

    // Accepts any unambiguous abbreviation; an exact word beats every prefix
    // match. The result 0 is also a valid value, so callers test `err`.
    T valFromPartialText(std::string const& text, std::string& err) const
    {
        err.clear();
        std::string const wanted = lowerCaseCopy(text);
        std::vector<size_t> candidates;
        for (size_t i = 0; i < list.size(); ++i) {
            if (wanted == list[i]) {
                candidates.assign(1, i);
                break;
            }
            if (wanted.size() <= list[i].size() && list[i].compare(0, wanted.size(), wanted) == 0)
                candidates.push_back(i);
        }
        if (candidates.empty()) {
            err = "\"" + text + "\" is not recognized\n";
            return static_cast<T>(0);
        }
        if (candidates.size() > 1) {
            err = ambiguityText(candidates);
            return static_cast<T>(0);
        }
        return static_cast<T>(candidates.front());
    }

    size_t size() const { return list.size(); }
    std::vector<std::string> const& texts() const { return list; }

protected:
    std::vector<std::string> list;

private:
    std::string ambiguityText(std::vector<size_t> const& candidates) const
    {
        std::string out = "Ambiguous selection, please choose ";
        for (size_t i = 0; i + 1 < candidates.size(); ++i)
            out += "\"" + list[candidates[i]] + "\" ";
        out += "or \"" + list[candidates.back()] + "\"";
        return out;
    }
};
