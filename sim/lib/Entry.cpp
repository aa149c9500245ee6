// The three plain-named functions through which the command line reaches the
// simulated library.
#include "api/HbaMgmtEntryPoints.h"
#include "api/SimApi.h"

#include <new>

extern "C" {

HBAMGMTAPI_EXPORT int hbamgmtapi_create_instance(HbaMgmtApi** instance)
{
    if (!instance)
        return MHBA_E_INVALID_ARG;
    *instance = new (std::nothrow) sim::SimApi;
    return *instance ? MHBA_S_OK : MHBA_E_FAILURE;
}

HBAMGMTAPI_EXPORT int hbamgmtapi_destroy_instance(HbaMgmtApi** instance)
{
    if (!instance)
        return MHBA_E_INVALID_ARG;
    delete *instance;
    *instance = nullptr;
    return MHBA_S_OK;
}

HBAMGMTAPI_EXPORT int hbamgmtapi_final_release()
{
    return MHBA_S_OK;
}

} // extern "C"
