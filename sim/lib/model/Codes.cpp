#include "model/Codes.h"

#include <map>

namespace sim::code {

std::string text(int code)
{
    static const std::map<int, const char*> texts = {
        {Ok, "Success"},
        {OkRestartRequired, "Success, but the adapter must be restarted for the change to take effect"},
        {Partial, "Partial success: some information could not be gathered"},
        {LunGone, "The LUN is no longer available (it is offline or gone)"},
        {PoolSizeOutOfRange, "The requested pool size is out of range for the configured drives"},
        {BadOwnerId, "The owner is not an adapter identifier in hexadecimal"},
        {CachedElsewhere, "The LUN is cached on another adapter"},
        {Failure, "General failure"},
        {NotSupported, "The feature is not supported by this adapter"},
        {AdapterNotFound, "Adapter not found"},
        {NoAdapterFound, "No adapter was found"},
        {AdapterNotResponding, "The adapter does not respond (it is offline or restarting)"},
        {AgentNotAnswering, "No remote agent answers at this address"},
        {AgentHasNoAdapter, "The remote agent answered, but no adapter was found behind it"},
        {FileError, "The file could not be read or written"},
        {StateFileError, "The simulated SAN could not be read or written"},
        {PasswordWrong, "The old password is not correct"},
        {PortHasFcipLink, "The FC port cannot be disabled because an FCIP link is configured on it"},
        {LinkRateBeyondSfp, "The SFP of the FC port cannot run at the requested link rate"},
        {AlreadyCached, "The LUN is already cached"},
        {NotCached, "The LUN is not cached"},
        {TooManyLockedRanges, "No more locked ranges can be set for this LUN (at most 16)"},
        {NotEnoughStorage, "Not enough free SSD storage for the request"},
        {PoolInUse, "The cache pool is in use by cached LUNs"},
        {AlreadyClusterMember, "The adapter is already a member of a cluster"},
        {NotClusterPrimary, "The request must be sent to the primary adapter of the cluster"},
        {DriveOfAnotherAdapter, "The drive carries the configuration of another adapter"},
        {DriveAlreadyInPool, "The drive is already a member of the cache pool"},
        {DriveNotInPool, "The drive is not a member of the cache pool"},
        {DriveNotUsable, "The drive is offline or security locked"},
        {InvalidArgument, "Invalid argument"},
        {BadAgentAddress, "The remote agent address is not valid"},
        {NotSanDataLun, "The LUN is not a SAN data LUN"},
        {ObjectNotFound, "Object not found"},
    };
    auto it = texts.find(code);
    if (it != texts.end())
        return it->second;
    return "Unknown return code " + std::to_string(code);
}

bool isFailure(int code)
{
    return code != Ok && code != OkRestartRequired && code != Partial;
}

} // namespace sim::code
