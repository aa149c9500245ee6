// Base of "enable cache" and "modify cache", which take the same keywords
// and differ only in the request they end with: holds the word tables of
// -mode and -profile and the work of both commands.
#pragma once

#include <cstdint>
#include <string>

#include "commands/CommandDeclaration.h"
#include "core/EnumStrList.h"
#include "core/TokenCmd.h"
#include "records/KLunCacheInfo.h"
#include "records/KLunInfo.h"

// The six optional keywords, between -mode and the LUN keywords, that set how
// a LUN is cached; both commands declare them alike.
#define CACHE_SETTINGS_ROWS                                                                                            \
    keywordRow(ModifierId::MODIFIER_PROFILE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),                  \
        keywordRow(ModifierId::MODIFIER_MAX_CACHE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),            \
        keywordRow(ModifierId::MODIFIER_MAX_READ, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),             \
        keywordRow(ModifierId::MODIFIER_MAX_WRITE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),            \
        keywordRow(ModifierId::MODIFIER_MIN_READ, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),             \
        keywordRow(ModifierId::MODIFIER_MIN_WRITE, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED)

class HIsaAdapter;
class KLunInfo;
class PLunID;

class CmdCacheEnableBase : public TokenCmd {
public:
    CmdCacheEnableBase();

    // Reads the keywords, checks them against the adapter and the LUN and
    // sends the request: enableCache, or modifyCache with `bModify`. The
    // resolved LUN is left in `lun`. 0 or a return code, words in `err`.
    int base_execCommand(bool bModify, PLunID& lun, std::string& err);

    // The whole command: the request, then its one line and result record.
    int runCacheCommand(bool bModify, std::string& err);

    // Help of the six keywords that both commands take between -mode and the
    // LUN keywords, in their declared order.
    static std::string cacheSettingsSyntax();
    static std::string cacheSettingsHelp();

    EnumStrList<KLunInfo::KISA_CACHE_CONFIG_TYPE> modeWords;
    EnumStrList<KLunCacheInfo::CACHE_PROFILE_TYPE> profileWords;

private:
    // What is sent; sizes in 512-byte blocks.
    struct CacheRequest {
        int mode = 0;
        int profile = KLunCacheInfo::CACHE_PROFILE_DEFAULT;
        uint32_t maxCache = 0;
        uint32_t minRead = 0;
        uint32_t maxRead = 0;
        uint32_t minWrite = 0;
        uint32_t maxWrite = 0;
        bool mirrorGiven = false;
        uint64_t mirrorAdapter = 0;
    };

    int readProfile(CacheRequest& request, std::string& err);
    int readMirror(CacheRequest& request, std::string& err);
    int resolveOneLun(HIsaAdapter& adapter, PLunID& lun, std::string& err);
    int readMode(HIsaAdapter& adapter, TokenModifierString const& mode, CacheRequest& request, std::string& err);
    int readSizes(bool bModify, KLunInfo const& info, CacheRequest& request, std::string& err);
    bool readBlockSize(ModifierId::MODIFIER_ID id, uint32_t present, uint32_t firmwareDefault, uint32_t& blocks,
                       std::string& err);
};
