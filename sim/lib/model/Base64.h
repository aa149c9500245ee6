// Base64 (the standard alphabet, with padding) for adapter files whose bytes
// are not text: the state file is JSON, and JSON strings hold only UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace sim::base64 {

std::string encode(std::string_view bytes);

// True when `text` is exactly what encode writes for some bytes: whole groups
// of four, padding only at the end, and no stray bits in the last group. A
// hand-edited scenario is checked with this before anything is decoded.
bool isValid(std::string_view text);

// The bytes `text` encodes; false (and `bytes` unspecified) when it is not
// valid as isValid describes.
bool decode(std::string_view text, std::string& bytes);

} // namespace sim::base64
