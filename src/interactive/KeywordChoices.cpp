#include "interactive/KeywordChoices.h"

#include "commands/adapter/CmdClusterCreate.h"
#include "commands/cache/CmdCacheEnableBase.h"
#include "commands/log/CmdLogBase.h"

// The lists stay with the commands that read the words; the menus only
// borrow them, so that a word offered is always a word accepted.
std::vector<std::string> const* keywordChoices(TokenCmd const& cmd, ModifierId::MODIFIER_ID id)
{
    switch (id) {
    case ModifierId::MODIFIER_MODE:
    case ModifierId::MODIFIER_PROFILE:
        if (auto const* cache = dynamic_cast<CmdCacheEnableBase const*>(&cmd))
            return id == ModifierId::MODIFIER_MODE ? &cache->modeWords.texts() : &cache->profileWords.texts();
        return nullptr;
    case ModifierId::MODIFIER_BASEPOS:
    case ModifierId::MODIFIER_SEVERITY:
        if (auto const* log = dynamic_cast<CmdLogBase const*>(&cmd))
            return id == ModifierId::MODIFIER_BASEPOS ? &log->basePositionWords.texts() : &log->severityWords.texts();
        return nullptr;
    case ModifierId::MODIFIER_HOST_CLUSTER_TYPE:
        if (dynamic_cast<CmdClusterCreate const*>(&cmd))
            return &CmdClusterCreate::hostClusterTypes().texts();
        return nullptr;
    default:
        return nullptr;
    }
}
