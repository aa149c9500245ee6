#include "model/Base64.h"

#include <array>

namespace sim::base64 {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr int kNotInAlphabet = -1;

const std::array<int, 256>& sextets()
{
    static const std::array<int, 256> table = [] {
        std::array<int, 256> t;
        t.fill(kNotInAlphabet);
        for (int i = 0; i < 64; ++i)
            t[static_cast<unsigned char>(kAlphabet[i])] = i;
        return t;
    }();
    return table;
}

int sextet(char c)
{
    return sextets()[static_cast<unsigned char>(c)];
}

// Bytes carried by the last group of four: 1, 2 or 3 as its padding says;
// 0 when the group is not well formed.
size_t lastGroupBytes(std::string_view group)
{
    size_t padding = group[3] != '=' ? 0 : group[2] != '=' ? 1 : 2;
    for (size_t i = 0; i < 4 - padding; ++i)
        if (sextet(group[i]) == kNotInAlphabet)
            return 0;
    // The bits past the last byte must be zero, so that each byte string has
    // exactly one encoding.
    if (padding == 1 && (sextet(group[2]) & 0x3) != 0)
        return 0;
    if (padding == 2 && (sextet(group[1]) & 0xF) != 0)
        return 0;
    return 3 - padding;
}

} // namespace

std::string encode(std::string_view bytes)
{
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    size_t i = 0;
    auto byte = [&](size_t at) { return static_cast<unsigned>(static_cast<unsigned char>(bytes[at])); };
    for (; i + 3 <= bytes.size(); i += 3) {
        unsigned group = byte(i) << 16 | byte(i + 1) << 8 | byte(i + 2);
        text += kAlphabet[group >> 18];
        text += kAlphabet[(group >> 12) & 0x3F];
        text += kAlphabet[(group >> 6) & 0x3F];
        text += kAlphabet[group & 0x3F];
    }
    size_t rest = bytes.size() - i;
    if (rest == 0)
        return text;
    unsigned group = byte(i) << 16 | (rest == 2 ? byte(i + 1) << 8 : 0);
    text += kAlphabet[group >> 18];
    text += kAlphabet[(group >> 12) & 0x3F];
    text += rest == 2 ? kAlphabet[(group >> 6) & 0x3F] : '=';
    text += '=';
    return text;
}

bool isValid(std::string_view text)
{
    if (text.size() % 4 != 0)
        return false;
    if (text.empty())
        return true;
    size_t body = text.size() - 4;
    for (size_t i = 0; i < body; ++i)
        if (sextet(text[i]) == kNotInAlphabet)
            return false;
    return lastGroupBytes(text.substr(body)) != 0;
}

bool decode(std::string_view text, std::string& bytes)
{
    if (!isValid(text))
        return false;
    bytes.clear();
    bytes.reserve(text.size() / 4 * 3);
    for (size_t i = 0; i < text.size(); i += 4) {
        size_t count = i + 4 < text.size() ? 3 : lastGroupBytes(text.substr(i));
        unsigned group = 0;
        for (size_t k = 0; k < 4; ++k)
            group = group << 6 | (text[i + k] == '=' ? 0u : static_cast<unsigned>(sextet(text[i + k])));
        for (size_t k = 0; k < count; ++k)
            bytes += static_cast<char>((group >> (16 - 8 * k)) & 0xFF);
    }
    return true;
}

} // namespace sim::base64
