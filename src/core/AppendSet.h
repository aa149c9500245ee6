// How one saved append set is shown to the user.
#pragma once

#include <string>

// "-append=<name> --> "<text>"": the name shows only when quoting it is
// needed (it holds a blank); plain names leave the place empty.
std::string appendSetDisplayLine(std::string const& name, std::string const& text);
