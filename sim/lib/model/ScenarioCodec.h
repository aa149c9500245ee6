// Streaming reader and writer of the scenario format. Every command reads the
// state and every change writes it, so these go straight between text and
// San without building a JSON tree. Both decline what they are not sure of,
// and the caller then takes the general path, which has the words for every
// error (see Scenario.cpp).
#pragma once

#include "model/San.h"

#include <string>
#include <string_view>

namespace sim::codec {

// The scenario text of `san`: fields at their default left out, keys sorted,
// one space per level of indentation, and a final newline. False (and `out`
// unspecified) when a text in the SAN is not valid UTF-8.
bool write(const San& san, std::string& out);

// True when `text` is well-formed UTF-8, which every text of a scenario must
// be to be written as JSON.
bool isUtf8(std::string_view text);

// Reads a scenario that is plain, well-formed JSON with only known fields of
// the right types and a supported header; fields left out keep their
// defaults. False for anything else: duplicate keys, unknown fields, numbers
// that do not fit their field or are written as fractions where a whole
// number belongs, a missing or unsupported header, invalid UTF-8. The
// checks of validateSan are not made here.
bool read(std::string_view text, San& out);

} // namespace sim::codec
