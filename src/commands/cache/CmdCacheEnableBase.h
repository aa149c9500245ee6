// Base of "enable cache" and "modify cache", which take the same keywords:
// holds the word tables of -mode and -profile.
#pragma once

#include <string>

#include "commands/CommandDeclaration.h"
#include "core/EnumStrList.h"
#include "core/TokenCmd.h"
#include "records/KLunCacheInfo.h"
#include "records/KLunInfo.h"

// The six optional keywords, between -mode and the LUN keywords, that set how
// a LUN is cached; both commands declare them alike.
#define CACHE_SETTINGS_ROWS                                                                              \
    keywordRow(ModifierId::MODIFIER_PROFILE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),     \
        keywordRow(ModifierId::MODIFIER_MAX_CACHE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED), \
        keywordRow(ModifierId::MODIFIER_MAX_READ, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),  \
        keywordRow(ModifierId::MODIFIER_MAX_WRITE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED), \
        keywordRow(ModifierId::MODIFIER_MIN_READ, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),  \
        keywordRow(ModifierId::MODIFIER_MIN_WRITE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED)

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
