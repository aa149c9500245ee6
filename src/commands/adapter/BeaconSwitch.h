// What "enable beacon" and "disable beacon" share: the port, checked
// against the adapter's own number of ports, and the switch itself.
#pragma once

#include <string>

class TokenCmd;

// Turns the beacon of the -port given to `cmd` on or off. 0 or a return code.
int switchBeacon(TokenCmd& cmd, bool enable, std::string& err);
