#include "commands/storage/FcPortSettings.h"

#include "commands/CommandPattern.h"
#include "core/EnumStrList.h"
#include "core/TokenCmd.h"
#include "records/KFcInfo.h"
#include "records/PBase.h"

namespace {

constexpr uint32_t kMinThrottle = 16;
constexpr uint32_t kMaxThrottle = 65535;
// Enough digits for any value in range and a few leading zeros; a longer
// text is out of range whatever it says.
constexpr size_t kMaxThrottleDigits = 9;

// The rates as the port's display names them, in lower case, by value.
class LinkRateWords : public EnumStrList<int32_t> {
public:
    LinkRateWords()
    {
        for (int32_t rate = PBase::FC_LINK_RATE_AUTO; rate <= PBase::FC_LINK_RATE_16GB; ++rate)
            add(rate, PBase::fcLinkRateToText(static_cast<PBase::FC_LINK_RATE>(rate)));
    }
};

// Which of the three connection keywords are on the line, as options.
struct ConnectionChoice {
    int count = 0;
    int32_t option = 0;
};

bool readConnectionKeyword(TokenCmd& cmd, ModifierId::MODIFIER_ID id, int32_t option, ConnectionChoice& choice,
                           std::string& err)
{
    TokenModifierString const* const keyword = cmd.findModifier(id, err);
    if (!keyword)
        return false;
    if (keywordGiven(keyword)) {
        ++choice.count;
        choice.option = option;
    }
    return true;
}

} // namespace

FcPortSettings FcPortSettings::of(KFcInfo const& port)
{
    FcPortSettings settings;
    settings.linkRate = port.programmedLinkRate;
    settings.connectionOption = port.programmedConnectionOption;
    settings.executionThrottle = port.executionThrottle;
    return settings;
}

bool linkRateFromText(std::string const& text, int32_t& rate, std::string& err)
{
    static LinkRateWords const words;
    int32_t const matched = words.valFromPartialText(text, err);
    if (!err.empty())
        return false;
    rate = matched;
    return true;
}

bool executionThrottleFromText(std::string const& text, uint32_t& throttle, std::string& err)
{
    bool const digitsOnly =
        text.size() <= kMaxThrottleDigits && text.find_first_not_of("0123456789") == std::string::npos;
    unsigned long const value = digitsOnly && !text.empty() ? std::stoul(text) : 0;
    if (!digitsOnly || value < kMinThrottle || value > kMaxThrottle) {
        err = "Execution Throttle must be in range " + std::to_string(kMinThrottle) + " to " +
            std::to_string(kMaxThrottle);
        return false;
    }
    throttle = static_cast<uint32_t>(value);
    return true;
}

bool readFcPortSettings(TokenCmd& cmd, FcPortSettings& settings, std::string& err)
{
    TokenModifierString const* const rate = cmd.findModifier(ModifierId::MODIFIER_FC_LINK_RATE, err);
    TokenModifierString const* const throttle =
        rate ? cmd.findModifier(ModifierId::MODIFIER_EXEC_THROTTLE, err) : nullptr;
    if (!rate || !throttle)
        return false;
    if (keywordGiven(rate) && !linkRateFromText(rate->value, settings.linkRate, err))
        return false;
    if (keywordGiven(throttle) && !executionThrottleFromText(throttle->value, settings.executionThrottle, err))
        return false;
    ConnectionChoice choice;
    if (!readConnectionKeyword(cmd, ModifierId::MODIFIER_LOOP_ONLY, KFcInfo::CONNECTION_OPTION_LOOP_ONLY, choice,
                               err) ||
        !readConnectionKeyword(cmd, ModifierId::MODIFIER_P2P_ONLY, KFcInfo::CONNECTION_OPTION_POINT_TO_POINT_ONLY,
                               choice, err) ||
        !readConnectionKeyword(cmd, ModifierId::MODIFIER_AUTO, KFcInfo::CONNECTION_OPTION_AUTO, choice, err))
        return false;
    if (choice.count > 1)
        return false;
    if (choice.count == 1)
        settings.connectionOption = choice.option;
    return true;
}
