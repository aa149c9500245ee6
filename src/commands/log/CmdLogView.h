// "view log": pages through the event log of the adapter, or of a log file saved by "save log",
// from a position that is remembered between runs.
//
// The position is the value of the -offset keyword itself, and the page
// length of a plain run the value of -previous: both are kept with the other
// keyword values of a successful command.
#pragma once

#include <optional>
#include <string>

#include "commands/log/CmdLogBase.h"

class HLogView;
class KLogEntry;
class LogPager;

class CmdLogView : public CmdLogBase {
public:
    CmdLogView();

    int execCommand(std::string& err) override;

private:
    static constexpr ModifierId::MODIFIER_ID kKeywordIds[] = {
        ModifierId::MODIFIER_FILEPATH, ModifierId::MODIFIER_BASEPOS,  ModifierId::MODIFIER_OFFSET,
        ModifierId::MODIFIER_FIND,     ModifierId::MODIFIER_SEVERITY, ModifierId::MODIFIER_PREVIOUS,
    };
    struct Keywords {
        TokenModifierString* all[std::size(kKeywordIds)] = {};
        TokenModifierString* file() const { return all[0]; }
        TokenModifierString* basepos() const { return all[1]; }
        TokenModifierString* offset() const { return all[2]; }
        TokenModifierString* find() const { return all[3]; }
        TokenModifierString* severity() const { return all[4]; }
        TokenModifierString* previous() const { return all[5]; }
    };
    // The numbers of -next, -previous and -offset, and whether each was typed.
    struct Page {
        bool nextGiven = false, previousGiven = false, offsetGiven = false;
        long long next = 0, previous = 0, offset = 0;
    };

    int viewLog(std::string& err);
    static std::string valueBeforeThisLine(TokenModifierString const& keyword,
                                           std::optional<std::string> const& remembered);
    bool readPageKeywords(Keywords const& k, long long count, Page& page, std::string& err);
    int startPosition(Keywords const& k, long long count, Page const& page, long long& position, std::string& err);
    bool searchOlder(Keywords const& k, HLogView& view, KLogEntry& current, std::string& err);
    static bool showPage(Keywords const& k, Page const& page, LogPager& pager);

    // What the last command of this process left in -offset and -previous.
    std::optional<std::string> rememberedOffset, rememberedPrevious;
};
