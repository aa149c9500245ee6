// The table of all commands, created in the order that help, menus and the
// preferences file show.
#pragma once

class TokenRoot;

// Creates every command with `new`, sets its parent to `root` and appends it
// to the root's children, in table order.
void addAllCommands(TokenRoot& root);
