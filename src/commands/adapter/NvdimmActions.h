// What the NVDIMM commands share: the adapter must have an NVDIMM, and the
// action flags of "execute nvdimm" map to the adapter's command codes.
#pragma once

#include <string>

#include "commands/CommandPattern.h"

class TokenCmd;

// Selects and finds the adapter; 1003 with a message when it has no NVDIMM.
int findNvdimmAdapter(TokenCmd& cmd, AddressedAdapter& target, std::string& err);

// The adapter's code of the first action flag given, in the order the
// command declares them. 52 when a flag is missing from the command or none
// was given.
int nvdimmCommandFromFlags(TokenCmd const& cmd, int& command, std::string& err);

// What the user is told once the adapter has done `command`.
std::string nvdimmDoneText(int command);
