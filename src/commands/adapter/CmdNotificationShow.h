// "show notification": shows the adapters' asynchronous event notifications.
// Ready for use, but not entered in the command tree, so that no command line
// reaches it yet.
#pragma once

#include <string>

#include "core/TokenCmd.h"

class KAdapterEventNotificationInfo;

class CmdNotificationShow : public TokenCmd {
public:
    CmdNotificationShow();

    int execCommand(std::string& err) override;

    // Receives each event from the management library and shows its text.
    static void aenCallback(const KAdapterEventNotificationInfo& event);

    // The elapsed time of the watch: hours only once there are any, then
    // minutes and seconds of two digits each.
    static std::string elapsedText(long long seconds);
};
