// A decoded record as a small tree of named values, which the JSON, CSV and
// text writers turn into output.
#pragma once

#include <string>
#include <utility>
#include <vector>

struct DecodedValue {
    enum Kind { Number, Text, Boolean, List, Object };

    Kind kind = Object;
    std::string scalar; // a number's digits, a text, "true" or "false"
    std::vector<DecodedValue> items;
    std::vector<std::pair<std::string, DecodedValue>> members;

    static DecodedValue number(std::string digits) { return {Number, std::move(digits), {}, {}}; }
    static DecodedValue text(std::string value) { return {Text, std::move(value), {}, {}}; }
    static DecodedValue boolean(bool value) { return {Boolean, value ? "true" : "false", {}, {}}; }
};

// One JSON value, nested objects and lists on one line each level deep.
std::string toJson(DecodedValue const& value, int indent);

// Flattens an object into (column, cell) pairs: nested names are joined with
// '.', list positions added as [i].
void flatten(DecodedValue const& value, std::string const& prefix,
             std::vector<std::pair<std::string, std::string>>& cells);
