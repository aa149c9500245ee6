// A console for the menu tests: the answers come from a string (NUL bytes
// and all) and everything the menus write is kept for comparison.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "interactive/MenuConsole.h"

class ScriptedConsole {
public:
    explicit ScriptedConsole(std::string const& answers) : in(tmpfile()), out(open_memstream(&buffer, &size))
    {
        fwrite(answers.data(), 1, answers.size(), in);
        rewind(in);
        scoped.emplace(in, out);
    }
    ~ScriptedConsole()
    {
        scoped.reset();
        fclose(in);
        fclose(out);
        free(buffer);
    }
    ScriptedConsole(ScriptedConsole const&) = delete;
    ScriptedConsole& operator=(ScriptedConsole const&) = delete;

    std::string output()
    {
        fflush(out);
        return std::string(buffer, size);
    }

    // How many times the text was written.
    size_t count(std::string const& text)
    {
        std::string const all = output();
        size_t n = 0;
        for (size_t at = all.find(text); at != std::string::npos; at = all.find(text, at + text.size()))
            ++n;
        return n;
    }

private:
    FILE* in;
    char* buffer = nullptr;
    size_t size = 0;
    FILE* out;
    std::optional<menu_console::ScopedConsole> scoped;
};
