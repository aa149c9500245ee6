// Return codes of the management library.
//
// The library answers every operation with one 32-bit code. It shares its
// number space with the command line's own codes (0 to 59), and a command
// hands it up unchanged, so the host process may see any of these numbers.
// Only a few codes carry names in the library; the others are named here so
// that callers and the simulator say what they mean instead of a bare number.
// The underlying type is fixed, so any 32-bit value the library invents is
// still a valid value of this type.
#pragma once

#include <cstdint>

enum e_MHBA_RETURN : int32_t {
    MHBA_S_OK = 0,
    // Success, but the adapter must restart before the change takes effect;
    // callers therefore test "result > 1" for failure.
    MHBA_S_OK_REBOOT_REQUIRED = 1,
    // A gathering operation got part of the data; the first inner failure
    // is left in the caller's MHbaReturnBuffer.
    MHBA_S_PARTIAL_SUCCESS = 2,

    MHBA_E_LUN_GONE = 116,
    MHBA_E_POOL_SIZE_OUT_OF_RANGE = 156,
    // The command line answers a drive owner that is no hexadecimal number
    // with this code of its own.
    MHBA_E_BAD_OWNER_ID = 169,
    MHBA_E_CACHED_BY_OTHER_ADAPTER = 185,

    MHBA_E_FAILURE = 1000,
    MHBA_E_NOT_SUPPORTED = 1003,
    MHBA_E_ADAPTER_NOT_IN_COLLECTION = 1004,
    MHBA_E_NO_ADAPTER_FOUND = 1005,
    MHBA_E_AGENT_NOT_RESPONDING = 1008,
    MHBA_E_AGENT_HAS_NO_ADAPTER = 1009,
    MHBA_E_FC_PORT_CANNOT_DISABLE = 1015,
    MHBA_E_LUN_ALREADY_CACHED = 1020,
    MHBA_E_LUN_NOT_CACHED = 1021,
    MHBA_E_INVALID_ARG = 1100,
    MHBA_E_BAD_AGENT_ADDRESS = 1105,
    // The LUN is of a kind the operation does not apply to (not a SAN LUN,
    // or a LUN that belongs to another adapter).
    MHBA_E_LUN_NOT_APPLICABLE = 1109,
    MHBA_E_OBJECT_NOT_FOUND = 1206,
};

static_assert(sizeof(e_MHBA_RETURN) == 4, "the library passes its codes as 32-bit integers");
