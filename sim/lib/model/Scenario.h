// Reading and writing the SAN as a JSON scenario. The state file, scenario
// files given to "hbasim reset" and demonstration files share this format.
#pragma once

#include "model/San.h"

#include <string>

namespace sim {

std::string scenarioToText(const San& san);

// Parses and checks a scenario. On failure returns false with a message that
// says what is wrong and where; `origin` (usually the file name) leads it.
bool scenarioFromText(const std::string& text, const std::string& origin, San& out, std::string& error);

// The same two through a JSON tree. The functions above take the streaming
// codec and come here for what it declines: the tree path accepts every
// hand-written scenario and has the words for every error.
std::string generalScenarioToText(const San& san);
bool generalScenarioFromText(const std::string& text, const std::string& origin, San& out, std::string& error);

// Rules that the JSON shape alone cannot express: unique identifiers,
// references that point somewhere, limits of the device.
bool validateSan(const San& san, std::string& error);

std::string adapterIdText(u64 id);
bool parseAdapterId(const std::string& text, u64& out);

} // namespace sim
