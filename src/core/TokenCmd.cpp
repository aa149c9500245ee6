// The command base: how a command builds its keyword subtree from its rows,
// keyword lookup, the required-keyword check, and small helpers for commands.
#include "core/TokenCmd.h"

#include <sys/stat.h>

#include "core/Parser.h"
#include "core/TextRules.h"
#include "core/TokenRoot.h"

namespace {

bool isDirectory(std::string const& path)
{
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// The keyword whose rows ask for it; -append gets the class that can list
// the saved sets.
Token* makeNode(TokenInitializer const& row)
{
    if (row.tokenType == Token::TOKEN_TYPE_STRING) {
        Token* node = new StringToken;
        node->initTokenBase(row);
        return node;
    }
    if (row.tokenType == Token::TOKEN_TYPE_MODIFIER) {
        Token* node = row.id == ModifierId::MODIFIER_APPEND ? new TokenModifierAppend : new TokenModifierString;
        node->init(row);
        return node;
    }
    return nullptr;
}

TokenModifierString* asModifier(Token* token)
{
    if (token->tokenType != Token::TOKEN_TYPE_MODIFIER)
        return nullptr;
    return static_cast<TokenModifierString*>(token);
}

} // namespace

TokenCmd::TokenCmd()
{
    tokenType = TOKEN_TYPE_CMD;
}

void TokenCmd::init(TokenInitializer const& row)
{
    TokenInitializer named(row);
    named.name = CmdAction::table().textFromVal(static_cast<CmdAction::CMD_ACTION>(row.id));
    initTokenBase(named);
    action = static_cast<CmdAction::CMD_ACTION>(row.id);
    item = static_cast<CmdItem::CMD_ITEM>(row.second);
    commandGroup = row.third;
}

// Rows carry their depth; a fall in depth climbs back towards the command.
void TokenCmd::initModifiers(TokenInitializer::TOKEN_INITIALIZER const* rows)
{
    if (!rows || rows[0].treeLevel < 2)
        return;
    Token* current = this;
    int currentLevel = 1;
    for (; rows->treeLevel >= 2; ++rows) {
        TokenInitializer const row(*rows);
        Token* node = makeNode(row);
        if (!node)
            continue;
        Token* attachTo = current;
        if (row.treeLevel < currentLevel) {
            attachTo = current->parent ? current->parent->parent : nullptr;
            currentLevel = row.treeLevel;
        } else if (row.treeLevel == currentLevel) {
            attachTo = current->parent;
        } else {
            currentLevel = row.treeLevel;
        }
        (attachTo ? attachTo : this)->addChild(node);
        current = node;
    }
}

int TokenCmd::execCommand(std::string&)
{
    return 1;
}

std::string TokenCmd::cmdHelpText() const
{
    return "  Command syntax:\n    " + ugCommandLowCase() + "\n" + (helpSyntax.empty() ? " " : helpSyntax);
}

// A command's own declaration of a keyword wins over the common keyword, so
// that, for instance, `show lun -zek=1` fills the command's own token.
TokenModifierString* TokenCmd::findModifier(ModifierId::MODIFIER_ID const& id, std::string& err) const
{
    err.clear();
    if (id == ModifierId::MODIFIER_NONE)
        return nullptr;
    TokenModifierString* const common = findCommonModifier(id, err);
    for (Token* child : children) {
        TokenModifierString* const own = asModifier(child);
        if (own && own->modifierId == id) {
            err.clear();
            return own;
        }
    }
    if (common) {
        err.clear();
        return common;
    }
    err = "\"" + ModifierId::table().textFromVal(id) + "\" is not a valid modifier";
    return nullptr;
}

TokenModifierString* TokenCmd::findCommonModifier(ModifierId::MODIFIER_ID const& id, std::string& err) const
{
    if (!parent || parent->tokenType != TOKEN_TYPE_ROOT)
        return nullptr;
    return static_cast<TokenRoot const*>(parent)->commonCommand.findModifier(id, err);
}

bool TokenCmd::verifyRequiredModifiersAreSet() const
{
    for (Token* child : children) {
        TokenModifierString const* const keyword = asModifier(child);
        if (!keyword)
            continue;
        std::string problem;
        if (keyword->requiredKind == TokenModifier::REQUIRED && keyword->isDefault)
            problem = " modifier must be specified\n";
        else if (!keyword->isDefault && keyword->valueKind == TokenModifier::VALUE_REQUIRED && keyword->value.empty())
            problem = " modifier requires a value\n";
        if (!problem.empty()) {
            outError("Error:  -" + keyword->name + problem + cmdHelpText() + "\n");
            return false;
        }
    }
    return true;
}

// Required values must come from this line, never from an earlier run.
void TokenCmd::resetModifierRequiredParamValues()
{
    for (Token* child : children) {
        TokenModifierString* const keyword = asModifier(child);
        if (keyword && keyword->requiredKind == TokenModifier::REQUIRED &&
            keyword->valueKind == TokenModifier::VALUE_REQUIRED)
            keyword->value.clear();
    }
}

bool TokenCmd::isAllHexDigits(std::string const& text)
{
    return text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

bool TokenCmd::createDirectoryIfItDoesNotExist(std::string& path, std::string& err)
{
    if (path.empty())
        path = Parser::getHomeDirectory();
    if (isDirectory(path))
        return true;
    // The mode is a hexadecimal constant on purpose: existing installations
    // have folders made with exactly these bits.
    if (mkdir(path.c_str(), 0x777) == 0)
        return true;
    err = "Directory create failed";
    return false;
}

// A carriage return ends a line and takes the next byte with it, so CR LF
// files read as plain lines. A last line without its end is not returned.
bool TokenCmd::readLineFromFilePointer(FILE* file, std::string& out)
{
    bool tooLong = false;
    return readLineFromFilePointer(file, out, out.max_size(), tooLong);
}

bool TokenCmd::readLineFromFilePointer(FILE* file, std::string& out, size_t limit, bool& tooLong)
{
    out.clear();
    tooLong = false;
    if (!file)
        return false;
    for (;;) {
        int const byte = std::fgetc(file);
        if (byte == EOF)
            return false;
        if (byte == '\r')
            return std::fgetc(file) != EOF;
        if (byte == '\n')
            return true;
        if (out.size() < limit)
            out.push_back(static_cast<char>(byte));
        else
            tooLong = true;
    }
}

void TokenCmd::removeLeadingWhitespace(std::string& text)
{
    dropLeadingWhitespace(text);
}
