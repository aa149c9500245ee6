// What "enable fc_port" and "disable fc_port" share: the port, checked
// against the adapter's own number of ports, and the switch itself.
#pragma once

#include <string>

class TokenCmd;

// Enables or disables the Fibre Channel port that -port names. 0 or a
// return code; a port that carries an FCIP link is refused with 1015 and a
// message that says so.
int switchFcPort(TokenCmd& cmd, bool enable, std::string& err);
