// Large synthetic SANs for benchmarks and load tests.
#pragma once

#include "model/San.h"

namespace sim {

// `adapters` local adapters (the first two in a cluster) that all see
// `targets` FC targets; LUNs are spread over the targets so that there are
// `lunPaths` paths in all, every fourth LUN reached through two targets.
// Each adapter has `drives` SSDs, all but the last in its cache pool.
// The first `cached` LUNs are cached on the first adapter, every fourth of
// them mirrored on the second when there is one.
San generateSan(int adapters, int lunPaths, int targets = 16, int drives = 4, int cached = 0);

} // namespace sim
