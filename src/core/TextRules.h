// Byte-level text rules of the command line: words compare without case, and
// whitespace is blank, tab, carriage return and line feed.
#pragma once

#include <cctype>
#include <string>

inline constexpr char const* kCommandLineWhitespace = " \t\r\n";

inline std::string lowerCaseCopy(std::string const& text)
{
    std::string out(text);
    for (char& c : out)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

inline void dropLeadingWhitespace(std::string& text)
{
    std::string::size_type const first = text.find_first_not_of(kCommandLineWhitespace);
    text.erase(0, first == std::string::npos ? text.size() : first);
}
