// Named values of the model's state fields. The numbers are those the
// adapters report in their records, and those a scenario file holds, so they
// never change; only the names are ours.
#pragma once

#include <cstdint>

namespace sim {

// Adapter::state.
enum AdapterState : int {
    AdapterOnline = 1,
    AdapterOffline = 2,
};

// CacheSettings::mode, and the mode of a cache request. A request with
// CacheStop ends caching; CachePurge drops the dirty data first.
enum CacheMode : int {
    CacheStop = 0,
    CacheReadWriteThrough = 1,
    CacheReadWriteBack = 2,
    CacheReadOnly = 3,
    CacheWriteThroughOnly = 4,
    CacheWriteBackOnly = 5,
    CachePurge = 6,
};

inline constexpr bool cachesWritesBack(int mode)
{
    return mode == CacheReadWriteBack || mode == CacheWriteBackOnly;
}

inline constexpr bool cachesWritesThrough(int mode)
{
    return mode == CacheReadWriteThrough || mode == CacheWriteThroughOnly;
}

// A mode a LUN can be put in by a request (not the purge, which is a state).
inline constexpr bool isCachingMode(int mode)
{
    return mode >= CacheReadWriteThrough && mode <= CacheWriteBackOnly;
}

// How a LUN's cache looks from one adapter.
enum CacheState : int {
    LunNotCached = 1,
    LunCachedHere = 2,
    LunCachedOnPeer = 3,
};

// How a LUN's mirror looks from one adapter.
enum MirrorRole : int {
    NotMirrored = 1,
    MirrorPrimary = 2,
    MirrorSecondary = 3,
};

// LocalLunInfo::mirrorType: the copy of an adapter-local LUN.
enum LocalMirrorType : int {
    LocalMirrorNone = 1,
    LocalMirrorSsdSsd = 2,
};

// CacheSettings::mirrorFlag and mirrorState of a cache mirrored on a peer.
enum MirrorFlag : int {
    MirrorFlagNone = 0,
    MirrorPeerDone = 4,
};
inline constexpr std::uint32_t kMirrorConfigured = 1u << 0;
inline constexpr std::uint32_t kMirrorInSynchrony = 1u << 8;
inline constexpr std::uint32_t kMirrorInTransition = 1u << 9;

// Lun::type: the SCSI peripheral class; only direct-access LUNs are cached.
inline constexpr int kDirectAccessLun = 1;
inline constexpr int kSequentialAccessLun = 2;
inline constexpr int kSanControllerLun = 11;

// Bits of a LUN's state word that the simulator derives.
inline constexpr std::uint32_t kLunOnline = 1u << 0;
inline constexpr std::uint32_t kLunStorageControllerLun = 1u << 7;
inline constexpr std::uint32_t kLunMapped = 1u << 11;
inline constexpr std::uint32_t kLunLocal = 1u << 14;
inline constexpr std::uint32_t kLunRemote = 1u << 15;
inline constexpr std::uint32_t kLunOnSsd = 1u << 18;
inline constexpr std::uint32_t kLunCacheReady = 1u << 21;
inline constexpr std::uint32_t kLunMirror = 1u << 22;

} // namespace sim
