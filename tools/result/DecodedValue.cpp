#include "DecodedValue.h"

#include "common/JsonText.h"

std::string toJson(DecodedValue const& value, int indent)
{
    std::string const inner(static_cast<size_t>(indent + 2), ' ');
    std::string const outer(static_cast<size_t>(indent), ' ');
    switch (value.kind) {
    case DecodedValue::Text:
        return jsonString(value.scalar);
    case DecodedValue::Number:
    case DecodedValue::Boolean:
        return value.scalar;
    case DecodedValue::List: {
        if (value.items.empty())
            return "[]";
        std::string out = "[\n";
        for (size_t i = 0; i < value.items.size(); ++i)
            out += inner + toJson(value.items[i], indent + 2) + (i + 1 < value.items.size() ? ",\n" : "\n");
        return out + outer + "]";
    }
    case DecodedValue::Object:
        break;
    }
    if (value.members.empty())
        return "{}";
    std::string out = "{\n";
    for (size_t i = 0; i < value.members.size(); ++i)
        out += inner + jsonString(value.members[i].first) + ": " + toJson(value.members[i].second, indent + 2) +
            (i + 1 < value.members.size() ? ",\n" : "\n");
    return out + outer + "}";
}

void flatten(DecodedValue const& value, std::string const& prefix,
             std::vector<std::pair<std::string, std::string>>& cells)
{
    switch (value.kind) {
    case DecodedValue::List:
        for (size_t i = 0; i < value.items.size(); ++i)
            flatten(value.items[i], prefix + "[" + std::to_string(i) + "]", cells);
        return;
    case DecodedValue::Object:
        for (auto const& [name, member] : value.members)
            flatten(member, prefix.empty() ? name : prefix + "." + name, cells);
        return;
    default:
        cells.emplace_back(prefix, value.scalar);
    }
}
