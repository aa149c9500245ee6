#include "commands/adapter/NvdimmActions.h"

#include <iterator>

#include "api/HbaMgmtInterfaces.h"
#include "core/Token.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"
#include "records/KIsaAdapterInfo.h"

namespace {

struct NvdimmAction {
    ModifierId::MODIFIER_ID flag;
    int command;
};

// In order of precedence; the adapter does not use the codes 3 and 4.
constexpr NvdimmAction kActions[] = {
    {ModifierId::MODIFIER_DISARM, 0},     {ModifierId::MODIFIER_ERASE, 1},         {ModifierId::MODIFIER_UPDATE, 2},
    {ModifierId::MODIFIER_UPDATE_ALL, 5}, {ModifierId::MODIFIER_SCAP_SELFTEST, 6}, {ModifierId::MODIFIER_SCRUB, 7},
};

constexpr int kUpdateCommand = 2;

} // namespace

int findNvdimmAdapter(TokenCmd& cmd, AddressedAdapter& target, std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, target, err))
        return rc;
    KIsaAdapterInfo const* const info = target.adapter->getCachedAdapterInfo();
    if (!info || !info->isCapable(KIsaAdapterInfo::NVDIMM_DATA_LUN)) {
        err = "NVDIMM data LUN is not supported by the specified adapter";
        return MHBA_E_NOT_SUPPORTED;
    }
    return 0;
}

int nvdimmCommandFromFlags(TokenCmd const& cmd, int& command, std::string& err)
{
    TokenModifierString const* flags[std::size(kActions)] = {};
    for (size_t i = 0; i < std::size(kActions); ++i) {
        flags[i] = cmd.findModifier(kActions[i].flag, err);
        if (!flags[i])
            return ZEKCLI_PARSE_FAIL;
    }
    for (size_t i = 0; i < std::size(kActions); ++i) {
        if (keywordGiven(flags[i])) {
            command = kActions[i].command;
            return 0;
        }
    }
    err = "One of -disarm, -erase, -update, -update_all, -scap_selftest or -scrub is required";
    return ZEKCLI_PARSE_FAIL;
}

std::string nvdimmDoneText(int command)
{
    return command == kUpdateCommand ? "NVDIMM update completed.\n" : "NVDIMM successfully configured.\n";
}
