// Where the menu session reads its answers and writes its menus: standard
// input and output, unless a test points them elsewhere.
#pragma once

#include <cstdio>
#include <string>

namespace menu_console {

FILE* input();
FILE* output();

// Writes the text as it stands and flushes it, so that a prompt without a
// line end is on the screen before the next read blocks.
void write(std::string const& text);
// The text and a line feed, as puts would.
void writeLine(std::string const& text);

// Reads one answer, leading whitespace dropped. False only at the end of
// input: a last line without its line feed still counts as a line.
bool readAnswer(std::string& answer);

// True once a read found the end of input; it stays so until reset, for
// each menu that sees the end turns it into its own way of leaving.
bool inputEnded();
void resetInputEnded();

// Points the session at other streams for as long as it lives (tests).
class ScopedConsole {
public:
    ScopedConsole(FILE* in, FILE* out);
    ~ScopedConsole();
    ScopedConsole(ScopedConsole const&) = delete;
    ScopedConsole& operator=(ScopedConsole const&) = delete;

private:
    FILE* previousIn;
    FILE* previousOut;
};

} // namespace menu_console
