// Base of "enable cache" and "modify cache", which take the same keywords:
// holds the word tables of -mode and -profile.
#pragma once

#include <string>

#include "core/EnumStrList.h"
#include "core/TokenCmd.h"
#include "records/KLunCacheInfo.h"
#include "records/KLunInfo.h"

class CmdCacheEnableBase : public TokenCmd {
public:
    CmdCacheEnableBase();

    // Help of the six keywords that both commands take between -mode and the
    // LUN keywords, in their declared order.
    static std::string cacheSettingsSyntax();
    static std::string cacheSettingsHelp();

    EnumStrList<KLunInfo::KISA_CACHE_CONFIG_TYPE> modeWords;
    EnumStrList<KLunCacheInfo::CACHE_PROFILE_TYPE> profileWords;
};
