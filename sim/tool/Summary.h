// The readable summary that "hbasim show" prints.
#pragma once

#include "model/San.h"

#include <string>

namespace sim {

std::string sanSummary(const San& san, long long now);

} // namespace sim
