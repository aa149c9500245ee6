// The nodes of the grammar tree: commands, their keywords and keyword values.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "core/ModifierId.h"
#include "core/TokenInitializer.h"

class Token {
public:
    // Stored in the preferences file: the numbers must not change.
    enum TOKEN_TYPE : int32_t {
        TOKEN_TYPE_ROOT = 0,
        TOKEN_TYPE_STRING = 1,
        TOKEN_TYPE_MODIFIER = 3,
        TOKEN_TYPE_CMD = 4,
    };

    Token() = default;
    Token(Token const&) = delete;
    Token& operator=(Token const&) = delete;

    // Virtual operations, in this order.
    virtual ~Token();
    virtual void init(TokenInitializer const& row);
    virtual void outError(std::string const& text) const;
    virtual bool outDisplay(std::string const& text, std::string& err) const;
    virtual bool outResult(void const* data, unsigned long size, std::string& err) const;
    virtual void myProgressMsg(int percent) const;
    virtual bool setValue(std::string const& text);
    virtual bool setName(std::string const& text);
    virtual bool baseInitFromPrefFile(FILE* file, unsigned int& childCount, int& a, int& b, int& c);
    virtual bool baseSaveToPrefFile(FILE* file, int a, int b, int c);

    void initTokenBase(TokenInitializer const& row);
    void initDefaultFlag();
    // Takes ownership of `child` and makes this token its parent.
    void addChild(Token* child);

    static bool safe_fopen(FILE** out, std::string const& path, std::string const& mode, std::string& err);
    static void displayMemory(char const* data, unsigned int size, unsigned int perLine, FILE* stream);

    Token* parent = nullptr;
    std::vector<Token*> children;
    int32_t tokenType = TOKEN_TYPE_ROOT;
    std::string name;
    std::string value;
    bool isDefault = true;
};

class StringToken : public Token {
public:
    StringToken() { tokenType = TOKEN_TYPE_STRING; }
};

// What makes a token a keyword; a plain second base of keyword tokens.
class TokenModifier {
public:
    enum REQUIRED_KIND : int32_t {
        REQUIRED_INTERNAL = 0,
        REQUIRED = 1,
        OPTIONAL = 2,
    };
    enum VALUE_KIND : int32_t {
        VALUE_NONE = 0, // a flag
        VALUE_REQUIRED = 1,
        VALUE_OPTIONAL = 2, // the value may be left out
    };

    ModifierId::MODIFIER_ID modifierId = ModifierId::MODIFIER_NONE;
    int32_t requiredKind = REQUIRED_INTERNAL;
    int32_t valueKind = VALUE_NONE;
    std::string modifierText; // kept for layout; nothing uses it
};

class TokenModifierString : public StringToken, public TokenModifier {
public:
    TokenModifierString() { tokenType = TOKEN_TYPE_MODIFIER; }

    void init(TokenInitializer const& row) override;

    // Value lookup for keywords that own a list of choices (the saved
    // append sets): prefix match, no exact-match preference.
    Token* findChild(std::string const& text, std::string& err);

    bool isTargetRelated() const;
    bool isLunRelated() const;
    bool isInitiatorRelated() const;
    bool isDeviceRelated() const;

    bool saveToPrefFile(FILE* file);
    bool initFromPrefFile(FILE* file);
};

// The common -append keyword, whose children are the saved sets.
class TokenModifierAppend : public TokenModifierString {
public:
    // One line per saved set.
    std::string displayAppendStrings() const;
};
