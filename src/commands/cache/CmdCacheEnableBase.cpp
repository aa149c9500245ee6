#include "commands/cache/CmdCacheEnableBase.h"

CmdCacheEnableBase::CmdCacheEnableBase()
{
    modeWords.add(KLunInfo::CACHE_CONFIG_NONE, "none");
    modeWords.add(KLunInfo::CACHE_CONFIG_READ_WRITE_THROUGH, "read_write_through");
    modeWords.add(KLunInfo::CACHE_CONFIG_READ_WRITE_BACK, "read_write_back");
    modeWords.add(KLunInfo::CACHE_CONFIG_READ_ONLY, "read_only");
    modeWords.add(KLunInfo::CACHE_CONFIG_WRITE_THROUGH_ONLY, "write_through_only");
    modeWords.add(KLunInfo::CACHE_CONFIG_WRITE_BACK_ONLY, "write_back_only");

    profileWords.add(KLunCacheInfo::CACHE_PROFILE_UNKNOWN, "unknown");
    profileWords.add(KLunCacheInfo::CACHE_PROFILE_DEFAULT, "default");
    profileWords.add(KLunCacheInfo::CACHE_PROFILE_ERP, "erp");
    profileWords.add(KLunCacheInfo::CACHE_PROFILE_WAREHOUSING, "warehousing");
    profileWords.add(KLunCacheInfo::CACHE_PROFILE_EXCHANGE, "exchange");
    profileWords.add(KLunCacheInfo::CACHE_PROFILE_MEDIA_SERVER, "media_server");
    profileWords.add(KLunCacheInfo::CACHE_PROFILE_VENDOR_SPECIFIC, "vendor_specific");
}

std::string CmdCacheEnableBase::cacheSettingsSyntax()
{
    return "\t[-profile=<profile>]\n"
           "\t[-max_cache=<size>]\n"
           "\t[-max_read=<KB>]\n"
           "\t[-max_write=<KB>]\n"
           "\t[-min_read=<KB>]\n"
           "\t[-min_write=<KB>]";
}

std::string CmdCacheEnableBase::cacheSettingsHelp()
{
    return "-profile=<profile>\n"
           "\tCache profile: default, erp, warehousing, exchange, media_server or\n"
           "\tvendor_specific. Default is default.\n"
           "-max_cache=<size>\n"
           "\tUpper limit on the cache that this LUN may use, 1 or greater.\n"
           "\tNot given means no limit.\n"
           "-max_read=<KB>\n"
           "\tLargest read, in KB, that is cached.\n"
           "-max_write=<KB>\n"
           "\tLargest write, in KB, that is cached.\n"
           "-min_read=<KB>\n"
           "\tSmallest read, in KB, that is cached; not above -max_read.\n"
           "-min_write=<KB>\n"
           "\tSmallest write, in KB, that is cached; not above -max_write.\n"
           "\tRead and write sizes not given keep their present values, or the\n"
           "\tfirmware defaults for a LUN not cached yet.";
}
