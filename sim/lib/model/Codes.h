// Return codes of the simulated management library, with their texts.
#pragma once

#include <string>

namespace sim::code {

inline constexpr int Ok = 0;
inline constexpr int OkRestartRequired = 1;
inline constexpr int Partial = 2;
inline constexpr int LunGone = 116;
inline constexpr int PoolSizeOutOfRange = 156;
inline constexpr int BadOwnerId = 169;
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
inline constexpr int LinkRateBeyondSfp = 1016;
inline constexpr int AlreadyCached = 1020;
inline constexpr int NotCached = 1021;
inline constexpr int TooManyLockedRanges = 1022;
inline constexpr int NotEnoughStorage = 1023;
inline constexpr int PoolInUse = 1024;
inline constexpr int AlreadyClusterMember = 1030;
inline constexpr int NotClusterPrimary = 1031;
inline constexpr int DriveOfAnotherAdapter = 1050;
inline constexpr int DriveAlreadyInPool = 1051;
inline constexpr int DriveNotInPool = 1052;
inline constexpr int DriveNotUsable = 1053;
inline constexpr int InvalidArgument = 1100;
inline constexpr int BadAgentAddress = 1105;
inline constexpr int NotSanDataLun = 1109;
inline constexpr int ObjectNotFound = 1206;

std::string text(int code);
bool isFailure(int code);

// Whether an operation that answers `code` keeps what it changed. Below 1000
// (success, restart required, partial success, and the adapters' own
// refusals, which change nothing before they refuse) it does; from 1000 on
// nothing the operation did stays. State file and demonstration image alike.
constexpr bool keepsChange(int code)
{
    return code >= Ok && code < Failure;
}

// The answer of an operation that ran although a fault with code `injected`
// (below 1000) was waiting for it: the injected code stands for its success,
// and an answer of its own other than plain success stands for itself.
constexpr int withInjected(int injected, int own)
{
    return own == Ok ? injected : own;
}

} // namespace sim::code
