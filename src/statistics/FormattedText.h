// printf-style text for the fixed-width layouts of the statistics views.
#pragma once

#include <cstdio>
#include <string>

template <typename... Args>
std::string formattedText(char const* format, Args... args)
{
    char small[256];
    int const length = std::snprintf(small, sizeof small, format, args...);
    if (length < 0)
        return std::string();
    if (static_cast<std::size_t>(length) < sizeof small)
        return std::string(small, static_cast<std::size_t>(length));
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), format, args...);
    text.resize(static_cast<std::size_t>(length));
    return text;
}
