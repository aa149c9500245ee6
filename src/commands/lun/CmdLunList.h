// "list lun": lists LUNs, one line per LUN with the keywords that select it.
#pragma once

#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "records/PUniqueID.h"

class HIsaAdapter;
class HLun;

class CmdLunList : public TokenCmd {
public:
    CmdLunList();

    int execCommand(std::string& err) override;

    // Adds the lines of one target's LUNs to `text` and the LUNs listed to
    // `luns`. Returns 0, 1206 when the adapter does not see the target, or
    // the library's code for the target's LUNs.
    int listLunsForOneTarget(HIsaAdapter* adapter, PTargetID const& target, std::string& text,
                             std::vector<PLunID>& luns, std::string& err);

private:
    int listThroughOneAdapter(std::string& err);
    int listThroughAdapterGroup(std::string& err);
    std::string lunLine(HLun* lun, PLunID const& id, bool& listed) const;
};
