// The answers that pass between the menus and prompts of the menu session.
#pragma once

#include "core/ZekcliReturn.h"

// What getMenuSelection gives besides an entry's index.
enum MENU_SELECTION : int {
    MENU_QUIT = -1,
    MENU_MAIN_MENU = -2,
    MENU_HELP = -3,
};

// What the prompts give besides 0 (go on) and API codes; they share the
// integer space of the command line's own codes, next to ZEKCLI_EXIT.
enum MENU_CONTROL : int {
    MENU_CONTROL_SHOW_HELP = 56,
    MENU_CONTROL_MAIN_MENU = 57,
    MENU_CONTROL_QUIT = ZEKCLI_EXIT,
};

// How a prompt answers a menu that was left rather than answered.
inline int menuControlFromSelection(int selection)
{
    return selection == MENU_HELP ? MENU_CONTROL_SHOW_HELP : MENU_CONTROL_MAIN_MENU;
}
