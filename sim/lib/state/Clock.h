// The simulator's clock. HBASIM_TIME (Unix seconds) pins it so that tests see
// the same counters, log times and flush progress on every run.
#pragma once

namespace sim {

long long simNow();
bool clockIsPinned();

} // namespace sim
