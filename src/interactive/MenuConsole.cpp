#include "interactive/MenuConsole.h"

#include "core/TokenCmd.h"

namespace menu_console {

namespace {

FILE* currentIn = nullptr;
FILE* currentOut = nullptr;
bool endOfInput = false;

} // namespace

FILE* input()
{
    return currentIn ? currentIn : stdin;
}

FILE* output()
{
    return currentOut ? currentOut : stdout;
}

void write(std::string const& text)
{
    fwrite(text.data(), 1, text.size(), output());
    fflush(output());
}

void writeLine(std::string const& text)
{
    write(text + "\n");
}

bool readAnswer(std::string& answer)
{
    // Whatever the command just printed must show before the session waits.
    fflush(stdout);
    fflush(output());
    bool const wholeLine = TokenCmd::readLineFromFilePointer(input(), answer);
    if (!wholeLine && answer.empty()) {
        endOfInput = true;
        return false;
    }
    TokenCmd::removeLeadingWhitespace(answer);
    return true;
}

bool inputEnded()
{
    return endOfInput;
}

void resetInputEnded()
{
    endOfInput = false;
}

ScopedConsole::ScopedConsole(FILE* in, FILE* out) : previousIn(currentIn), previousOut(currentOut)
{
    currentIn = in;
    currentOut = out;
    endOfInput = false;
}

ScopedConsole::~ScopedConsole()
{
    currentIn = previousIn;
    currentOut = previousOut;
    endOfInput = false;
}

} // namespace menu_console
