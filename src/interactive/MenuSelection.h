// The one numbered menu of the session: how it is drawn and how an answer
// is read. TokenCmd::getMenuSelection puts the two together.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

// The screen of one round: banner, the command line so far, the entries
// (the default one marked), the key reminder and the prompt.
std::string menuScreenText(std::vector<std::string> const& entries, int defaultIndex, std::string const& prompt,
                           std::string const& line);

// What an answer selects: an index, or a MENU_SELECTION code. Answers that
// select nothing give kAskAgain.
constexpr int kAskAgain = -100;
int menuChoiceFromAnswer(std::string const& answer, int defaultIndex, size_t entryCount);
