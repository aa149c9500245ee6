// Where the simulated library's objects get the SAN from: the shared state
// file, or a demonstration file held in memory for the rest of the process.
// It also carries the message handler and the fault injection checks.
#pragma once

#include "model/San.h"
#include "state/StateStore.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class HMsgHandler;
class MHbaReturnBuffer;

namespace sim {

class Backend {
public:
    Backend();

    // The SAN as it stands now, brought up to the clock; null after a failure
    // that has been reported through the message handler.
    const San* view();

    // Runs `change` on the SAN under the state lock and keeps the result when
    // its code keeps a change (code::keepsChange) or when `keepAlways` is set.
    // Returns the code of `change`, or the state-file failure code.
    int change(const std::function<int(San&, long long now)>& change, bool keepAlways = false);

    // Fault injection: the code an injected fault gives this operation, or 0.
    // A gathering fault sets `firstError` and gives partial success.
    int fault(u64 adapter, const std::string& operation, MHbaReturnBuffer* firstError = nullptr);

    // Counts the changes this process has made to the SAN, so that records
    // filled before one can tell that they may be out of date.
    const std::uint64_t* changeCount() const { return &changeCount_; }

    bool loadDemonstration(const std::string& file, std::string& error);
    bool inDemonstration() const { return demo_.has_value(); }

    void setHandler(HMsgHandler* handler) { handler_ = handler; }
    HMsgHandler* handler() const { return handler_; }
    void info(const std::string& text);
    void warning(const std::string& text);
    void progress(int percent);

    long long now() const;

private:
    int changeOnce(const std::function<int(San&, long long now)>& change, bool keepAlways);
    void reportFailure(const std::string& error);

    void takeWrittenAsView(const std::string& stamp);
    const Snapshot* changeBase(long long now) const;

    StateStore store_;
    std::optional<San> demo_;
    // The SAN handed out by view(), with the file text and stamp it came
    // from; brought up to the clock in place, up to `viewSettledAt_`.
    Snapshot view_;
    bool haveView_ = false;
    long long viewSettledAt_ = 0;
    // What this process wrote last. It becomes the view at the next view()
    // rather than at once, so that what callers hold from view() stays put.
    Snapshot written_;
    bool haveWritten_ = false;
    long long writtenAt_ = 0;
    HMsgHandler* handler_ = nullptr;
    std::uint64_t changeCount_ = 0;
    std::string lastFailure_; // said once, not again on every later call
};

} // namespace sim
