// Turns a result record's payload into decoded records. Commands deliver
// either one record image or a counted block of them; which record it is
// follows from the image size, with the command's item deciding between
// record types of equal size. A new command's payload of a known record type
// is therefore decoded without any change here.
#pragma once

#include <string>
#include <vector>

#include "DecodedValue.h"

// An object with "framing" ("counted" or "single"), "records" (each with
// "record": its type, and "fields"), or for bytes that fit no known record,
// "record": "unknown" and the bytes in hex.
DecodedValue decodePayload(std::string const& item, std::vector<unsigned char> const& payload);
