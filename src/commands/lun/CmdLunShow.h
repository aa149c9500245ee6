// "show lun": shows everything known about LUNs: identity, state, paths, cache settings and
// statistics.
#pragma once

#include <string>
#include <vector>

#include "core/TokenCmd.h"
#include "records/KLunInfo.h"
#include "records/PUniqueID.h"

class HIsaAdapter;
class KLunIoStatistics;

class CmdLunShow : public TokenCmd {
public:
    CmdLunShow();

    int execCommand(std::string& err) override;

    // Adds what the adapter knows of one LUN path to `text` and its record
    // to `infos`. Returns 0, or 1206 when the adapter holds no such LUN.
    int showOneLun(HIsaAdapter* adapter, PLunID const& lun, std::string& text, std::vector<KLunInfo>& infos,
                   std::string& err);

private:
    int showThroughOneAdapter(std::string& err);
    int showThroughAdapterGroup(std::string& err);
    std::string identityText(KLunInfo const& info, PLunID const& lun) const;
    static std::string statisticsText(KLunInfo const& info, KLunIoStatistics const& statistics);
};
