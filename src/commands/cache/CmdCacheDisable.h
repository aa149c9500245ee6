// "disable cache": stops caching a LUN on the adapter named by -zek.
#pragma once

#include <string>
#include <vector>

#include "core/TokenCmd.h"

struct AddressedAdapter;

class CmdCacheDisable : public TokenCmd {
public:
    CmdCacheDisable();

    int execCommand(std::string& err) override;

private:
    // 0 when the LUN is no longer cached by the adapter, else the code.
    int disableOnAdapter(HIsaAdapter& adapter, std::vector<PLunID>& ids, std::string& err);
    int disableGoneLun(HIsaAdapter& adapter, std::string& err);
    int disableThroughCluster(AddressedAdapter& addressed, KClusterID const& cluster, std::string& err);
};
