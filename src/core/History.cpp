// The optional history of changing commands, <home>/zekcli.log. It is kept
// only when an administrator has created the file; the tool never creates it.
#include <cstdio>
#include <ctime>
#include <string>
#include <unistd.h>

#include "core/FileByName.h"
#include "core/Parser.h"

namespace {

// Actions that change something on an adapter or in the preferences.
bool isChangingAction(CmdAction::CMD_ACTION action)
{
    switch (action) {
    case CmdAction::ACTION_ADD:
    case CmdAction::ACTION_CLEAR:
    case CmdAction::ACTION_CREATE:
    case CmdAction::ACTION_DESTROY:
    case CmdAction::ACTION_DISABLE:
    case CmdAction::ACTION_ENABLE:
    case CmdAction::ACTION_FACTORY_RESET:
    case CmdAction::ACTION_FLUSH:
    case CmdAction::ACTION_INVALIDATE:
    case CmdAction::ACTION_LOCK:
    case CmdAction::ACTION_MODIFY:
    case CmdAction::ACTION_PUT:
    case CmdAction::ACTION_REMOVE:
    case CmdAction::ACTION_RESTART:
    case CmdAction::ACTION_RESTORE:
    case CmdAction::ACTION_SET:
    case CmdAction::ACTION_STOP:
    case CmdAction::ACTION_UNLOCK:
    case CmdAction::ACTION_UPDATE:
        return true;
    default:
        return false;
    }
}

std::string localTimeText()
{
    time_t const now = time(nullptr);
    struct tm local {};
    localtime_r(&now, &local);
    char buffer[64] = {};
    asctime_r(&local, buffer);
    std::string text(buffer);
    if (!text.empty() && text.back() == '\n')
        text.pop_back();
    return text;
}

} // namespace

bool Parser::isCommandHistoryFileExists()
{
    return access(historyPath.c_str(), R_OK | W_OK) == 0;
}

// Successes, successes that need a restart, and partial successes are kept.
void Parser::updateCommandHistory(int rc, std::string const&)
{
    if (static_cast<unsigned int>(rc) >= 3 || !currentCmd || !isChangingAction(currentCmd->action))
        return;
    if (historyPath.empty())
        historyPath = getHomeDirectory() + "/" + "zekcli.log";
    if (!isCommandHistoryFileExists())
        return;
    std::string unwritable;
    FILE* file = openFileByName(historyPath, "a", unwritable);
    if (!file)
        return;
    std::string const line = localTimeText() + " " + commandLine + "\n";
    fwrite(line.data(), 1, line.size(), file);
    fclose(file);
}
