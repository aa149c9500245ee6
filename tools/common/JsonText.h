// Small helpers for writing JSON text by hand: the tools emit flat, known
// shapes, so a library would buy nothing.
#pragma once

#include <cstdio>
#include <string>

// The text as a JSON string literal, quotes included. Bytes outside
// printable ASCII are written as \u00XX so that any record text, however
// damaged, gives valid JSON.
inline std::string jsonString(std::string const& text)
{
    std::string out = "\"";
    for (unsigned char c : text) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (c < 0x20 || c >= 0x7f) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\u%04x", c);
                out += escaped;
            } else {
                out += static_cast<char>(c);
            }
        }
    }
    return out + "\"";
}
