// Nodes of the grammar tree: construction from declaration rows, ownership
// of children, value lookup among children, and two file helpers.
#include "core/Token.h"

#include <cstring>

#include "core/FileByName.h"
#include "core/ModifierId.h"
#include "core/TextRules.h"

namespace {

bool isPrintableByte(unsigned char byte)
{
    return byte >= 32 && byte <= 127;
}

} // namespace

TokenInitializer::TokenInitializer(TOKEN_INITIALIZER const& row)
    : treeLevel(row.treeLevel), tokenType(row.tokenType), name(row.name ? row.name : ""),
      value(row.value ? row.value : ""), id(row.id), second(row.second), third(row.third)
{}

void TokenInitializer::init()
{
    treeLevel = 0;
    tokenType = 0;
    name.clear();
    value.clear();
    id = 0;
    second = 0;
    third = 0;
}

Token::~Token()
{
    for (Token* child : children)
        delete child;
}

void Token::init(TokenInitializer const& row)
{
    initTokenBase(row);
}

void Token::outError(std::string const&) const {}

bool Token::outDisplay(std::string const&, std::string&) const
{
    return false;
}

bool Token::outResult(void const*, unsigned long, std::string&) const
{
    return false;
}

void Token::myProgressMsg(int percent) const
{
    if (parent)
        parent->myProgressMsg(percent);
}

bool Token::setValue(std::string const& text)
{
    value = text;
    isDefault = false;
    return true;
}

bool Token::setName(std::string const& text)
{
    name = text;
    return true;
}

void Token::initTokenBase(TokenInitializer const& row)
{
    parent = nullptr;
    tokenType = row.tokenType;
    name = row.name;
    value = row.value;
}

void Token::initDefaultFlag()
{
    isDefault = true;
    for (Token* child : children)
        child->initDefaultFlag();
}

void Token::addChild(Token* child)
{
    child->parent = this;
    children.push_back(child);
}

bool Token::safe_fopen(FILE** out, std::string const& path, std::string const& mode, std::string& err)
{
    try {
        std::string reason;
        *out = openFileByName(path, mode, reason);
        if (*out)
            return true;
        err = "Unable to open file \"" + path + "\", (" + reason + ")";
    } catch (...) {
        err = "fopen() exception";
    }
    return false;
}

void Token::displayMemory(char const* data, unsigned int size, unsigned int perLine, FILE* stream)
{
    if (!stream)
        stream = stdout;
    if (perLine == 0)
        perLine = 16;
    for (unsigned int start = 0; start < size; start += perLine) {
        std::fprintf(stream, "0x%08llx ", static_cast<unsigned long long>(reinterpret_cast<uintptr_t>(data + start)));
        for (unsigned int i = start; i < start + perLine; ++i) {
            if (i < size)
                std::fprintf(stream, "%02X ", static_cast<unsigned char>(data[i]));
            else
                std::fputs("   ", stream);
        }
        for (unsigned int i = start; i < start + perLine && i < size; ++i) {
            unsigned char const byte = static_cast<unsigned char>(data[i]);
            std::fputc(isPrintableByte(byte) ? byte : '.', stream);
        }
        std::fputc('\n', stream);
    }
}

void TokenModifierString::init(TokenInitializer const& row)
{
    TokenInitializer named(row);
    named.name = ModifierId::table().textFromVal(static_cast<ModifierId::MODIFIER_ID>(row.id));
    initTokenBase(named);
    modifierId = static_cast<ModifierId::MODIFIER_ID>(row.id);
    requiredKind = row.second;
    valueKind = row.third;
}

Token* TokenModifierString::findChild(std::string const& text, std::string& err)
{
    err.clear();
    if (text.empty()) {
        if (children.size() == 1)
            return children.front();
        err = "No default selection";
        return nullptr;
    }
    std::string const wanted = lowerCaseCopy(text);
    std::vector<Token*> matches;
    for (Token* child : children)
        if (child->name.compare(0, wanted.size(), wanted) == 0)
            matches.push_back(child);
    if (matches.empty()) {
        err = text + " is not recognized";
        return nullptr;
    }
    if (matches.size() == 1)
        return matches.front();
    err = "Ambiguous selection, please choose ";
    for (size_t i = 0; i + 1 < matches.size(); ++i)
        err += "\"" + matches[i]->value + "\" ";
    err += "or \"" + matches.back()->value + "\"";
    return nullptr;
}

bool TokenModifierString::isTargetRelated() const
{
    return modifierId == ModifierId::MODIFIER_FC_TARGET || modifierId == ModifierId::MODIFIER_IS_TARGET;
}

bool TokenModifierString::isLunRelated() const
{
    switch (modifierId) {
    case ModifierId::MODIFIER_LUN_WWULN:
    case ModifierId::MODIFIER_LUN_ANY_WWULN:
    case ModifierId::MODIFIER_LUN_SERIAL:
    case ModifierId::MODIFIER_LUN_NUMBER:
    case ModifierId::MODIFIER_VPGINDEX:
        return true;
    default:
        return isTargetRelated();
    }
}

bool TokenModifierString::isInitiatorRelated() const
{
    return modifierId == ModifierId::MODIFIER_FC_INITIATOR || modifierId == ModifierId::MODIFIER_IS_INITIATOR;
}

bool TokenModifierString::isDeviceRelated() const
{
    return modifierId == ModifierId::MODIFIER_FC_DEVICE || modifierId == ModifierId::MODIFIER_IS_DEVICE;
}
