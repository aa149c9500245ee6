// Writes the command table as JSON: every command with its keywords and help
// texts, and the keywords common to all commands. The man pages and the shell
// completion are generated from this, so they follow the table as it is
// built and cannot drift from what hostcli accepts.
#include <cstdio>
#include <string>

#include "common/JsonText.h"
#include "core/CmdAction.h"
#include "core/CmdItem.h"
#include "core/ModifierId.h"
#include "core/Parser.h"
#include "core/TokenRoot.h"
#include "core/ZekcliReturn.h"

namespace {

std::string field(char const* name, std::string const& value)
{
    return jsonString(name) + ": " + jsonString(value);
}

char const* requiredText(int32_t kind)
{
    switch (kind) {
    case TokenModifier::REQUIRED:
        return "required";
    case TokenModifier::OPTIONAL:
        return "optional";
    default:
        return "internal";
    }
}

char const* valueText(int32_t kind)
{
    switch (kind) {
    case TokenModifier::VALUE_REQUIRED:
        return "required";
    case TokenModifier::VALUE_OPTIONAL:
        return "optional";
    default:
        return "none";
    }
}

std::string keywords(TokenCmd const& cmd)
{
    std::string out = "[";
    char const* separator = "";
    for (Token const* child : cmd.children) {
        if (child->tokenType != Token::TOKEN_TYPE_MODIFIER)
            continue;
        auto const* keyword = static_cast<TokenModifierString const*>(child);
        out += separator;
        out += "{" + field("name", ModifierId::table().textFromVal(keyword->modifierId)) + ", " +
            field("required", requiredText(keyword->requiredKind)) + ", " +
            field("value", valueText(keyword->valueKind)) + "}";
        separator = ",\n      ";
    }
    return out + "]";
}

std::string command(TokenCmd const& cmd)
{
    return "    {" + field("action", CmdAction::table().textFromVal(cmd.action)) + ",\n     " +
        field("item", CmdItem::table().textFromVal(cmd.item)) + ",\n     " +
        "\"action_code\": " + std::to_string(cmd.action) + ", \"item_code\": " + std::to_string(cmd.item) + ",\n     " +
        field("title", cmd.helpTitle) + ",\n     " + field("description", cmd.helpDescription) + ",\n     " +
        field("syntax", cmd.helpSyntax) + ",\n     " + field("modifiers", cmd.helpModifiers) + ",\n     " +
        field("notes", cmd.helpNotes) + ",\n     " + field("examples", cmd.helpExamples) + ",\n     " +
        field("result", cmd.helpResultFile) + ",\n     \"keywords\": " + keywords(cmd) + "}";
}

std::string vocabulary(std::vector<std::string> const& words)
{
    std::string out = "[";
    for (size_t i = 0; i < words.size(); ++i)
        out += (i ? ", " : "") + jsonString(words[i]);
    return out + "]";
}

// The command line's own codes share one number space with the library's,
// which start far above these.
std::string returnCodes()
{
    std::string out = "[";
    char const* separator = "";
    for (long code = 0; code < 1000; ++code) {
        char const* const text = zekcliReturnValueText(code);
        if (!text)
            continue;
        out += separator;
        out += "{\"code\": " + std::to_string(code) + ", " + field("text", text) + "}";
        separator = ",\n    ";
    }
    return out + "]";
}

} // namespace

int main()
{
    Parser parser;
    parser.initParsingTree();
    TokenRoot const& root = parser.root;
    std::string out = "{\n  " + field("common_help", root.commonModifierHelp()) + ",\n  " +
        field("result_layout", root.commonResultHelp()) +
        ",\n  \"actions\": " + vocabulary(CmdAction::table().texts()) +
        ",\n  \"items\": " + vocabulary(CmdItem::table().texts()) + ",\n  \"return_codes\": " + returnCodes() +
        ",\n  \"common_keywords\": " + keywords(root.commonCommand) + ",\n  \"commands\": [\n";
    char const* separator = "";
    for (Token const* child : root.children) {
        if (child->tokenType != Token::TOKEN_TYPE_CMD)
            continue;
        out += separator + command(*static_cast<TokenCmd const*>(child));
        separator = ",\n";
    }
    out += "\n  ]\n}\n";
    return std::fwrite(out.data(), 1, out.size(), stdout) == out.size() && std::fflush(stdout) == 0 ? 0 : 1;
}
