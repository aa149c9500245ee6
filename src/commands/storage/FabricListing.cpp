#include "commands/storage/FabricListing.h"

#include "api/HbaMgmtInterfaces.h"
#include "api/MHbaReturnBuffer.h"

int gatherFabric(HIsaAdapter& adapter, std::string& notice)
{
    MHbaReturnBuffer firstFailure;
    int const rc = adapter.getTargetsAndInitiators(&firstFailure);
    if (rc == MHBA_S_PARTIAL_SUCCESS)
        notice = "getTargetsAndInitiators() returned partial success.  At least one attempt to get info returned " +
            firstFailure.displayText() + "\n";
    return rc;
}

int fabricObjectNotFound(char const* kind, std::string const& name, std::string& err)
{
    err = std::string(kind) + " \"" + name + "\" not found";
    return MHBA_E_OBJECT_NOT_FOUND;
}
