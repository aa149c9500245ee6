#include "commands/log/CmdLogBase.h"

#include "api/HIsaAdapter.h"
#include "api/HLogView.h"
#include "commands/CommandOutput.h"
#include "commands/CommandPattern.h"
#include "records/KLogEntry.h"

CmdLogBase::CmdLogBase()
{
    basePositionWords.add(BASEPOS_START, "start");
    basePositionWords.add(BASEPOS_END, "end");

    int severity = 0;
    for (char const* word : {"unknown", "fatal", "error", "warning", "trace", "info", "debug", "system"})
        severityWords.add(severity++, word);
}

int CmdLogBase::openLogView(HIsaAdapter& adapter, TokenModifierString const& file, LogViewFailure const& failure,
                            HLogView*& view, std::string& err) const
{
    if (keywordGiven(&file)) {
        view = adapter.getLogViewFromFile(file.value);
        if (!view) {
            err = failure.fromFile;
            return MHBA_E_OBJECT_NOT_FOUND;
        }
        return 0;
    }
    if (int const rc = adapter.loadLog(0))
        return rc;
    view = adapter.getLogView();
    if (!view) {
        err = failure.fromAdapter;
        return MHBA_E_OBJECT_NOT_FOUND;
    }
    return 0;
}

bool CmdLogBase::resolveSeverity(TokenModifierString const& keyword, int& severity, std::string& err) const
{
    severity = severityWords.valFromPartialText(keyword.value, err);
    return err.empty();
}

bool CmdLogBase::startWalk(CommandOutput& out, HIsaAdapter* adapter, HLogView& view, KLogEntry& newest)
{
    if (!out.banner(adapter))
        return false;
    if (view.getCount() != 0 && view.getLastEntry(newest))
        return true;
    out.line("Log is empty");
    return false;
}
