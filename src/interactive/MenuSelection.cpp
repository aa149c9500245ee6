#include "interactive/MenuSelection.h"

#include <cctype>
#include <climits>

#include "core/TokenCmd.h"
#include "interactive/MenuCodes.h"
#include "interactive/MenuConsole.h"

namespace {

constexpr size_t kKeptAnswerLength = 32;
constexpr int kMainMenuNumber = 98;
constexpr int kQuitNumber = 99;

std::string entryLine(size_t index, bool isDefault, std::string const& text)
{
    std::string out(index > 9 ? 3 : 4, ' ');
    out += isDefault ? "   [" : "    ";
    out += std::to_string(index) + ":";
    out += isDefault ? "] " : "  ";
    out += " " + text + "\n";
    return out;
}

// Reads a leading decimal number as sscanf "%d" would, stopping at the first
// NUL; a number beyond int selects nothing rather than something arbitrary.
bool readDecimal(std::string const& text, long long& number)
{
    char const* p = text.c_str();
    while (*p && std::isspace(static_cast<unsigned char>(*p)))
        ++p;
    bool const negative = *p == '-';
    if (*p == '-' || *p == '+')
        ++p;
    if (!std::isdigit(static_cast<unsigned char>(*p)))
        return false;
    long long value = 0;
    for (; std::isdigit(static_cast<unsigned char>(*p)); ++p) {
        value = value * 10 + (*p - '0');
        if (value > static_cast<long long>(INT_MAX) + 1)
            return false;
    }
    number = negative ? -value : value;
    return number >= INT_MIN && number <= INT_MAX;
}

} // namespace

std::string menuScreenText(std::vector<std::string> const& entries, int defaultIndex, std::string const& prompt,
                           std::string const& line)
{
    std::string screen = "\n        HalvardConsole\n\n";
    screen += "        Korvane CLI - Version 2.103.6.4";
    screen += "\n\n        " + line + "\n\n";
    for (size_t i = 0; i < entries.size(); ++i)
        screen += entryLine(i, static_cast<long long>(i) == defaultIndex, entries[i]);
    screen += "\n        (m or 98: Main Menu; q or 99: Quit; h or ?  - Help)\n";
    screen += "        " + prompt;
    return screen;
}

// Only the first character names a key, and case counts: "help" is help,
// "H" is nothing. Numbers are read from the last part of a long answer.
int menuChoiceFromAnswer(std::string const& answer, int defaultIndex, size_t entryCount)
{
    if (answer.empty())
        return defaultIndex;
    switch (answer[0]) {
    case '?':
    case 'h':
        return MENU_HELP;
    case 'm':
        return MENU_MAIN_MENU;
    case 'q':
        return MENU_QUIT;
    default:
        break;
    }
    std::string const kept = answer.size() > kKeptAnswerLength ? answer.substr(kKeptAnswerLength) : answer;
    long long number = 0;
    if (!readDecimal(kept, number))
        return kAskAgain;
    if (number == kMainMenuNumber)
        return MENU_MAIN_MENU;
    if (number == kQuitNumber)
        return MENU_QUIT;
    if (number >= 0 && static_cast<unsigned long long>(number) < entryCount)
        return static_cast<int>(number);
    return kAskAgain;
}

// The end of input quits, as "q" does: taking the default entry for ever
// would run the same command without end.
int TokenCmd::getMenuSelection(std::vector<std::string> const& entries, int defaultIndex, std::string const& prompt,
                               std::string const& line)
{
    std::string const screen = menuScreenText(entries, defaultIndex, prompt, line);
    for (;;) {
        menu_console::write(screen);
        std::string answer;
        if (!menu_console::readAnswer(answer))
            return MENU_QUIT;
        int const choice = menuChoiceFromAnswer(answer, defaultIndex, entries.size());
        if (choice != kAskAgain)
            return choice;
    }
}
