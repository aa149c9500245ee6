#include "commands/adapter/FileCommand.h"

#include "api/HbaMgmtInterfaces.h"
#include "core/Token.h"
#include "core/TokenCmd.h"
#include "core/ZekcliReturn.h"

int findAdapterAndFile(TokenCmd& cmd, AddressedAdapter& target, std::string& file, std::string& err)
{
    if (int const rc = findAddressedAdapter(cmd, target, err))
        return rc;
    err.clear();
    TokenModifierString const* const path = cmd.findModifier(ModifierId::MODIFIER_FILEPATH, err);
    if (!path)
        return ZEKCLI_PARSE_FAIL;
    file = path->value;
    return 0;
}

namespace {

char const* const kArchiveEnding = ".tar.gz";

bool readAdapterFileKeywords(TokenCmd const& cmd, AdapterFileKeywords& out, std::string& err)
{
    TokenModifierString const* const name = cmd.findModifier(ModifierId::MODIFIER_NAME, err);
    if (!name)
        return false;
    TokenModifierString const* const clear = cmd.findModifier(ModifierId::MODIFIER_CLEAR, err);
    if (!clear)
        return false;
    out.named = keywordGiven(name);
    out.name = out.named ? name->value : std::string();
    out.clear = keywordGiven(clear);
    return true;
}

} // namespace

int findAdapterFileCopy(TokenCmd& cmd, AddressedAdapter& target, std::string& file, AdapterFileKeywords& adapterFile,
                        std::string& err)
{
    if (int const rc = findAdapterAndFile(cmd, target, file, err))
        return rc;
    if (!readAdapterFileKeywords(cmd, adapterFile, err))
        return ZEKCLI_PARSE_FAIL;
    return 0;
}

int saveAdapterArchive(TokenCmd& cmd, e_MHBA_RETURN (HIsaAdapter::*save)(const std::string&),
                       std::string const& doneText, std::string& err)
{
    AddressedAdapter target;
    std::string file;
    if (int const rc = findAdapterAndFile(cmd, target, file, err))
        return rc;
    if (int const rc = (target.adapter->*save)(withArchiveEnding(file)))
        return rc;
    CommandReport report;
    report.text = doneText;
    return finishCommand(cmd, target.adapter, report, err);
}

// The ending is judged from the second-last dot on, so "a.gz" or "tar.gz"
// are not taken for archives of the right kind.
std::string withArchiveEnding(std::string const& name)
{
    size_t const lastDot = name.rfind('.');
    size_t const secondLastDot =
        lastDot == std::string::npos || lastDot == 0 ? std::string::npos : name.rfind('.', lastDot - 1);
    if (secondLastDot != std::string::npos && name.compare(secondLastDot, std::string::npos, kArchiveEnding) == 0)
        return name;
    return name + kArchiveEnding;
}
