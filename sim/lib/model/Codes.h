// Return codes of the simulated management library, with their texts.
#pragma once

#include <string>

namespace sim::code {

inline constexpr int Ok = 0;
inline constexpr int OkRestartRequired = 1;
inline constexpr int Partial = 2;
inline constexpr int LunGone = 116;
inline constexpr int PoolSizeOutOfRange = 156;
inline constexpr int CachedElsewhere = 185;
inline constexpr int Failure = 1000;
inline constexpr int NotSupported = 1003;
inline constexpr int AdapterNotFound = 1004;
inline constexpr int NoAdapterFound = 1005;
inline constexpr int AdapterNotResponding = 1006;
inline constexpr int AgentNotAnswering = 1008;
inline constexpr int AgentHasNoAdapter = 1009;
inline constexpr int FileError = 1010;
inline constexpr int StateFileError = 1011;
inline constexpr int PasswordWrong = 1012;
inline constexpr int PortHasFcipLink = 1015;
inline constexpr int AlreadyCached = 1020;
inline constexpr int NotCached = 1021;
inline constexpr int TooManyLockedRanges = 1022;
inline constexpr int NotEnoughStorage = 1023;
inline constexpr int PoolInUse = 1024;
inline constexpr int AlreadyClusterMember = 1030;
inline constexpr int NotClusterPrimary = 1031;
inline constexpr int InvalidArgument = 1100;
inline constexpr int BadAgentAddress = 1105;
inline constexpr int NotSanDataLun = 1109;
inline constexpr int ObjectNotFound = 1206;

std::string text(int code);
bool isFailure(int code);

} // namespace sim::code
