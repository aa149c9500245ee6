// Append sets: named pieces of command line kept as the children of the
// common -append keyword, saved with the preferences, and pulled into a line
// by -append=<name>.
#include <algorithm>
#include <string>

#include "core/AppendSet.h"
#include "core/TextRules.h"
#include "core/TokenRoot.h"
#include "records/PBase.h"

namespace {

TokenModifierString* appendKeyword(TokenRoot& root)
{
    std::string scratch;
    return root.commonCommand.findModifier(ModifierId::MODIFIER_APPEND, scratch);
}

} // namespace

std::string appendSetDisplayLine(std::string const& name, std::string const& text)
{
    return "-append=" + PBase::addQuotesIfInternalSpace(name) + " --> \"" + text + "\"\n";
}

std::string TokenRoot::getAppendSet(std::string const& name, std::string& err)
{
    err.clear();
    TokenModifierString* const keyword = appendKeyword(*this);
    if (!keyword) {
        err = "\"append\" is not a valid modifier";
        return std::string();
    }
    keyword->setValue(name);
    Token const* const set = keyword->findChild(name, err);
    return set ? set->value : std::string();
}

// Names are matched by prefix, as on the command line, so "ab" reaches the
// only set that begins with it. An empty text removes a set that exists,
// and creates an empty one that doesn't.
void TokenRoot::updateAppendSet(std::string const& name, std::string const& text)
{
    TokenModifierString* const keyword = appendKeyword(*this);
    if (!keyword)
        return;
    keyword->setValue(name);
    std::string scratch;
    Token* const set = keyword->findChild(name, scratch);
    if (!set) {
        StringToken* const created = new StringToken;
        created->name = lowerCaseCopy(name);
        created->value = text;
        keyword->addChild(created);
    } else if (!text.empty()) {
        set->setValue(text);
    } else {
        keyword->children.erase(std::find(keyword->children.begin(), keyword->children.end(), set));
        delete set;
    }
}

std::string TokenModifierAppend::displayAppendStrings() const
{
    std::string text;
    for (Token const* set : children)
        text += appendSetDisplayLine(set->name, set->value);
    return text;
}
