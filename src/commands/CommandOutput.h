// The output of a command that writes in more than one piece: the adapter
// banner, lines of text, the result record.
//
// Every write goes through the frame's channels (console, -textfile,
// -result) exactly as TokenCmd's own calls do. The first write that fails
// is remembered with its message; every later write is then skipped, and
// `end` turns the command's code into 55 with that message. Writes never
// touch the command's `err`: a message already there (the failing LUN of a
// walk, say) stays until `end` replaces it after a failed write.
//
// Each write returns whether the output is still whole, so that a command
// stops where it must (before changing a device, before waiting) and lets
// the rest run where nothing but reading follows:
//
//     CommandOutput out(*this);
//     if (!out.banner(adapter))
//         return out.end(0, err);             // nothing changed yet: stop
//     for (PLunID const& lun : luns)
//         out.line(textOf(lun));              // skipped after a failure
//     out.result(code, &records, sizeof records);
//     return out.end(0, err);                 // 0, or 55 and the message
#pragma once

#include <string>

class HIsaAdapter;
class TokenCmd;

class CommandOutput {
public:
    explicit CommandOutput(TokenCmd const& cmd);

    // The "[ Device 0 on local host ]" line of the adapter (null: "???").
    bool banner(HIsaAdapter* adapter);
    // A piece of text; an empty one writes nothing.
    bool line(std::string const& text);
    // The result record with the code and optional payload.
    bool result(int code, void const* data = nullptr, unsigned long size = 0);
    // A failure of the output that is not a write, such as a result payload
    // that could not be built: the command ends with 55 and `why`.
    void fail(std::string const& why);

    // True while no write has failed.
    bool ok() const { return !failed; }
    // What the command returns: 55 with the first failure's message put in
    // `err`, or else `code` with `err` left as it is.
    int end(int code, std::string& err) const;

private:
    // Remembers the outcome of one write; true when the output is whole.
    bool remember(bool written);

    TokenCmd const& cmd;
    bool failed = false;
    std::string failure;
    std::string scratch;
};
