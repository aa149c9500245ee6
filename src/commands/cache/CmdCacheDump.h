// "dump cache": saves a summary of the cache of the adapter in a file named CacheInfo-<adapter
// id><YYYY-MM-DD_HH-MM-SS>.txt and displays it, once or at an interval.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class CmdCacheDump : public TokenCmd {
public:
    CmdCacheDump();

    int execCommand(std::string& err) override;

    // "CacheInfo-", the adapter's text and the local time; empty when the
    // time cannot be had.
    std::string getCacheInfoFileName(std::string const& adapterText) const;
    // The file's lines, each ended by a new line, or why it cannot be read.
    std::string displayCacheInfoFile(std::string const& path) const;

private:
    int dumpRepeatedly(HIsaAdapter& adapter, std::string const& folder, unsigned int seconds, std::string& err);
};
