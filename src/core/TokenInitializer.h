// The rows by which every command declares itself and its keywords.
#pragma once

#include <string>

class TokenInitializer {
public:
    // Compile-time form of a row. For a command row `id`, `second`, `third`
    // are action, item and command group; for a keyword row they are the
    // keyword id, its required kind and its value kind. A level below 2
    // ends a keyword list.
    struct TOKEN_INITIALIZER {
        int treeLevel;
        int tokenType;
        char const* name;
        char const* value;
        int id;
        int second;
        int third;
    };

    TokenInitializer() { init(); }
    explicit TokenInitializer(TOKEN_INITIALIZER const& row);

    void init();

    int treeLevel;
    int tokenType;
    std::string name;
    std::string value;
    int id;
    int second;
    int third;
};
