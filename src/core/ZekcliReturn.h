// The command line's own return codes. They share one integer space with the
// management API's codes, which start at 1000 (0, 1 and 2 are API successes).
#pragma once

enum ZEKCLI_RETURN : int {
    ZEKCLI_OK = 0,
    ZEKCLI_INIT_FAIL = 51,
    ZEKCLI_PARSE_FAIL = 52,
    ZEKCLI_CONFIRM_FAIL = 53,
    ZEKCLI_CMD_FAIL = 54,
    // Output could not be written; this one has no name of its own in
    // messages, its text comes from the API's code table.
    ZEKCLI_OUTPUT_FAIL = 55,
    ZEKCLI_EXIT = 58,
    ZEKCLI_TIMEOUT = 59,
};

// The words for one of the command line's own return codes, or null for a
// code that is not its own. The manual and the result-file decoder use them
// too.
char const* zekcliReturnValueText(long code);
