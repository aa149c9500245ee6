#include "commands/cache/CmdCacheEnableBase.h"

#include <vector>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "commands/LunLookup.h"
#include "commands/cache/LunKeywordText.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"
#include "records/KIsaAdapterPath.h"
#include "records/PUniqueID.h"

namespace {

constexpr int kLargestKeywordNumber = 0x7FFFFFFF;

// A size of 0 would read as "take the default" on the adapter's side; the
// user asked for the smallest window there is.
uint32_t kilobytesToBlocks(int kilobytes)
{
    if (kilobytes == 0)
        return 1;
    return static_cast<uint32_t>(kilobytes) * 2u;
}

bool isCacheMode(int mode)
{
    return mode >= KLunInfo::CACHE_CONFIG_READ_WRITE_THROUGH && mode <= KLunInfo::CACHE_CONFIG_WRITE_BACK_ONLY;
}

// The capability a mode needs of the caching adapter, with the words of its
// refusal; modes not listed need none.
int checkModeCapability(HIsaAdapter& adapter, int mode, std::string& err)
{
    KIsaAdapterInfo const* const info = adapter.getCachedAdapterInfo();
    auto capable = [info](KIsaAdapterInfo::ZEK_CAPABILITY_TYPE type) { return info && info->isCapable(type); };
    if (mode == KLunInfo::CACHE_CONFIG_READ_WRITE_BACK && !capable(KIsaAdapterInfo::WRITE_BACK_CACHE)) {
        err = "-mode=read_write_back is not supported by the specified adapter";
        return MHBA_E_NOT_SUPPORTED;
    }
    if (mode == KLunInfo::CACHE_CONFIG_READ_WRITE_THROUGH && !capable(KIsaAdapterInfo::WRITE_THROUGH_CACHE)) {
        err = "-mode=read_write_through is not supported by the specified adapter";
        return MHBA_E_NOT_SUPPORTED;
    }
    if (mode == KLunInfo::CACHE_CONFIG_NONE) {
        err = "Please select -mode=read_write_back, -mode=read_write_through, -mode=read_only, "
              "-mode=write_through_only, or -mode=write_back_only";
        return ZEKCLI_PARSE_FAIL;
    }
    return 0;
}

// The two refusals that mean the other command was wanted.
void explainRefusal(int code, std::string& err)
{
    if (code == MHBA_E_LUN_ALREADY_CACHED)
        err = "This command is for use on LUNs that are not currently cached.  Please use the 'modify cache' "
              "command instead.";
    else if (code == MHBA_E_LUN_NOT_CACHED)
        err = "This command is for use on LUNs that are currently cached.  Please use the 'enable cache' "
              "command instead.";
}

} // namespace

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

int CmdCacheEnableBase::runCacheCommand(bool bModify, std::string& err)
{
    PLunID lun;
    int const rc = base_execCommand(bModify, lun, err);
    CommandReport report;
    report.banner = false;
    if (rc == 0)
        report.text =
            std::string(bModify ? "Successfully modified caching for LUN " : "Successfully enabled caching for LUN ") +
            lunKeywordText(lun) + "\n";
    report.resultCode = static_cast<e_MHBA_RETURN>(rc);
    if (int const written = finishCommand(*this, nullptr, report, err))
        return written;
    return rc;
}

int CmdCacheEnableBase::base_execCommand(bool bModify, PLunID& lun, std::string& err)
{
    AddressedAdapter addressed;
    if (int const rc = findAddressedAdapter(*this, addressed, err))
        return rc;
    err.clear();

    TokenModifierString const* useDefault = nullptr;
    if (bModify && !(useDefault = findModifier(ModifierId::MODIFIER_USE_DEFAULT, err)))
        return ZEKCLI_PARSE_FAIL;
    TokenModifierString const* const mode = findModifier(ModifierId::MODIFIER_MODE, err);
    if (!mode || !findModifier(ModifierId::MODIFIER_PROFILE, err))
        return ZEKCLI_PARSE_FAIL;

    CacheRequest request;
    if (int const rc = readProfile(request, err))
        return rc;
    if (int const rc = readMirror(request, err))
        return rc;
    // Naming the mirror may have scanned again, which renews the library's objects.
    HIsaAdapter* const adapter = g_pHbaMgmtApi->getAdapters()->find(addressed.path);
    if (!adapter)
        return MHBA_E_ADAPTER_NOT_IN_COLLECTION;
    if (int const rc = resolveOneLun(*adapter, lun, err))
        return rc;

    HLun* const held = findLunObject(*adapter, lun, LunGathering::EveryTarget);
    if (!held) {
        err = "LUN not found";
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    if (int const rc = readLunRecord(*held))
        return rc;

    if (keywordGiven(mode)) {
        if (int const rc = readMode(*adapter, *mode, request, err))
            return rc;
    } else {
        int const present = held->getLunInfo()->cacheInfo.eCacheMode;
        request.mode = isCacheMode(present) ? present : static_cast<int>(KLunInfo::CACHE_CONFIG_NONE);
    }

    if (keywordGiven(useDefault)) {
        e_MHBA_RETURN const reset =
            adapter->modifyCache(lun, request.mode, request.profile, 0, 0, 0, 0, 0, request.mirrorAdapter, true);
        if (reset != MHBA_S_OK)
            return reset;
        // The sizes not given below are then the defaults just put in force.
        if (int const rc = held->refreshLunInfo())
            return rc;
    }
    KLunInfo const info = *held->getLunInfo();
    if (int const rc = readSizes(bModify, info, request, err))
        return rc;
    // No keyword removes a mirror, so a change must not drop one either.
    if (!request.mirrorGiven && info.cacheInfo.bMirrored)
        request.mirrorAdapter = info.cacheInfo.ui64MirrorAdapter;

    e_MHBA_RETURN const rc = bModify
        ? adapter->modifyCache(lun, request.mode, request.profile, request.maxCache, request.minRead, request.maxRead,
                               request.minWrite, request.maxWrite, request.mirrorAdapter, false)
        : adapter->enableCache(lun, request.mode, request.profile, request.maxCache, request.minRead, request.maxRead,
                               request.minWrite, request.maxWrite, request.mirrorAdapter);
    if (g_pHbaMgmtApi->isFailure(rc)) {
        explainRefusal(rc, err);
        return rc;
    }
    // The change is made: a failed banner is reported by the caller's result
    // record, and a success with a note (restart needed, partial) is told by
    // its code alone.
    CommandOutput out(*this);
    out.banner(adapter);
    err.clear();
    return out.end(rc, err);
}

int CmdCacheEnableBase::readProfile(CacheRequest& request, std::string& err)
{
    TokenModifierString const* const profile = findModifier(ModifierId::MODIFIER_PROFILE, err);
    if (!profile)
        return ZEKCLI_PARSE_FAIL;
    if (!keywordGiven(profile))
        return 0;
    request.profile = profileWords.valFromPartialText(profile->value, err);
    return err.empty() ? 0 : ZEKCLI_PARSE_FAIL;
}

int CmdCacheEnableBase::readMirror(CacheRequest& request, std::string& err)
{
    TokenModifierString const* const mirror = findModifier(ModifierId::MODIFIER_MIRROR, err);
    if (!mirror)
        return ZEKCLI_PARSE_FAIL;
    request.mirrorGiven = keywordGiven(mirror);
    if (!request.mirrorGiven)
        return 0;
    if (mirror->value.empty()) {
        err = "-mirror requires a value";
        return ZEKCLI_PARSE_FAIL;
    }
    KIsaAdapterPath path;
    if (int const rc = selectAdapterFromKeyword(ModifierId::MODIFIER_MIRROR, path, err))
        return rc;
    request.mirrorAdapter = path.isaHbaId();
    return 0;
}

int CmdCacheEnableBase::resolveOneLun(HIsaAdapter& adapter, PLunID& lun, std::string& err)
{
    std::vector<PLunID> ids;
    if (!getLunIdFromCommandLine(&adapter, false, false, ids, err))
        return ZEKCLI_PARSE_FAIL;
    if (int const rc = checkLunTargetKeywords(*this, err))
        return rc;
    if (!filterLunIdListToOnePerMulipathLun(&adapter, ids, err))
        return ZEKCLI_PARSE_FAIL;
    lun = ids.front();
    return 0;
}

int CmdCacheEnableBase::readMode(HIsaAdapter& adapter, TokenModifierString const& mode, CacheRequest& request,
                                 std::string& err)
{
    request.mode = modeWords.valFromPartialText(mode.value, err);
    if (!err.empty())
        return ZEKCLI_PARSE_FAIL;
    return checkModeCapability(adapter, request.mode, err);
}

int CmdCacheEnableBase::readSizes(bool bModify, KLunInfo const& info, CacheRequest& request, std::string& err)
{
    int maxCache = 0;
    bool found = false;
    if (!getNumberFromCommandLineModifierIfFound(ModifierId::MODIFIER_MAX_CACHE, 1, kLargestKeywordNumber, maxCache,
                                                 found, err))
        return ZEKCLI_PARSE_FAIL;
    // Not given sends 0, which also lifts a limit set earlier.
    request.maxCache = found ? static_cast<uint32_t>(maxCache) : 0;

    KLunCacheInfo const& present = info.cacheInfo;
    // A LUN being enabled has no settings of its own yet to keep.
    auto kept = [bModify](uint32_t value) { return bModify ? value : 0u; };
    if (!readBlockSize(ModifierId::MODIFIER_MAX_READ, kept(present.ui32MaxRead), info.ui32DefaultMaxRead,
                       request.maxRead, err) ||
        !readBlockSize(ModifierId::MODIFIER_MIN_READ, kept(present.ui32MinRead), info.ui32DefaultMinRead,
                       request.minRead, err) ||
        !readBlockSize(ModifierId::MODIFIER_MAX_WRITE, kept(present.ui32MaxWrite), info.ui32DefaultMaxWrite,
                       request.maxWrite, err) ||
        !readBlockSize(ModifierId::MODIFIER_MIN_WRITE, kept(present.ui32MinWrite), info.ui32DefaultMinWrite,
                       request.minWrite, err))
        return ZEKCLI_PARSE_FAIL;

    if (request.minRead > request.maxRead) {
        err = "Minimum read size to be cached must be less than the maximum read size to be cached";
        return ZEKCLI_PARSE_FAIL;
    }
    if (request.minWrite > request.maxWrite) {
        err = "Minimum write size to be cached must be less than the maximum write size to be cached";
        return ZEKCLI_PARSE_FAIL;
    }
    return 0;
}

bool CmdCacheEnableBase::readBlockSize(ModifierId::MODIFIER_ID id, uint32_t present, uint32_t firmwareDefault,
                                       uint32_t& blocks, std::string& err)
{
    int kilobytes = 0;
    bool found = false;
    if (!getNumberFromCommandLineModifierIfFound(id, 0, kLargestKeywordNumber, kilobytes, found, err))
        return false;
    if (found)
        blocks = kilobytesToBlocks(kilobytes);
    else
        blocks = present != 0 ? present : firmwareDefault;
    return true;
}
