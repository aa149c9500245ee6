// The SAN that a fresh state file starts with: small, but with something to
// show for every command (see docs/simulator.md for its inventory).
#pragma once

#include "model/San.h"

namespace sim {

San defaultSan();

// Helpers shared with the synthetic SAN generator.
std::string hex16(u64 value); // 16 hexadecimal digits, as WWNs are written
Port makePort(u64 adapterId, int index);
Drive makeDrive(u64 adapterId, int index, u64 sizeBytes, bool configured);
std::vector<LogRecord> makeLog(long long now, int count);

} // namespace sim
