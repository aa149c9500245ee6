// One asynchronous event notification of an adapter. Its fields and its text
// belong to the management library; the command line only shows the text.
#pragma once

#include <string>

class KAdapterEventNotificationInfo {
public:
    virtual ~KAdapterEventNotificationInfo() = default;
    virtual std::string displayText() const = 0;
};
