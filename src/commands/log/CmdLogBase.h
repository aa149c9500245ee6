// Base of the log commands: the word tables of -basepos and -severity, which
// several of them resolve, and the steps they share.
#pragma once

#include <iterator>
#include <string>

#include "core/EnumStrList.h"
#include "core/TokenCmd.h"

class CommandOutput;
class HIsaAdapter;
class HLogView;
class KLogEntry;

class CmdLogBase : public TokenCmd {
public:
    // Where -offset counts from.
    enum BASEPOS_TYPE : int {
        BASEPOS_START = 0,
        BASEPOS_END = 1,
    };

    CmdLogBase();

    EnumStrList<BASEPOS_TYPE> basePositionWords;
    // Values are log entry severities; a lower number is worse.
    EnumStrList<int> severityWords;

protected:
    // What a command says when it cannot have the log it asked for.
    struct LogViewFailure {
        std::string fromFile;    // the saved log that -file names
        std::string fromAdapter; // the log just fetched from the adapter
    };

    // The saved log that -file names when it is on the line, else the log of
    // the adapter, fetched anew. Returns 0, the fetch's code, or 1206 with
    // the failure text in `err`.
    int openLogView(HIsaAdapter& adapter, TokenModifierString const& file, LogViewFailure const& failure,
                    HLogView*& view, std::string& err) const;

    // The severity named by the value of -severity, abbreviations included.
    // False with the word matcher's text in `err`.
    bool resolveSeverity(TokenModifierString const& keyword, int& severity, std::string& err) const;

    // The adapter banner, then the newest record of the log. False when
    // there is nothing to walk: the output broke, or the log is empty and
    // "Log is empty" has been shown.
    static bool startWalk(CommandOutput& out, HIsaAdapter* adapter, HLogView& view, KLogEntry& newest);

    // Finds each of `ids` among the command's keywords, in order; false with
    // the lookup's text at the first that is missing.
    template <size_t N>
    bool findKeywords(ModifierId::MODIFIER_ID const (&ids)[N], TokenModifierString* (&found)[N], std::string& err) const
    {
        for (size_t i = 0; i < N; ++i)
            if (!(found[i] = findModifier(ids[i], err)))
                return false;
        return true;
    }
};
