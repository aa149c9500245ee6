#include "api/Backend.h"

#include "api/HMsgHandler.h"
#include "api/MHbaReturnBuffer.h"
#include "model/Codes.h"
#include "model/Rules.h"
#include "model/Scenario.h"
#include "state/Clock.h"

#include <exception>
#include <limits>

namespace sim {

Backend::Backend() : store_(StateStore::defaultPath()) {}

long long Backend::now() const
{
    return simNow();
}

void Backend::reportFailure(const std::string& error)
{
    if (error == lastFailure_)
        return;
    lastFailure_ = error;
    warning(error);
}

// A process that just wrote the state needs no parse to see it again, as
// long as the file is still the one it wrote.
void Backend::takeWrittenAsView(const std::string& stamp)
{
    if (!haveWritten_)
        return;
    haveWritten_ = false;
    if (stamp.empty() || stamp != written_.stamp)
        return;
    view_ = std::move(written_);
    viewSettledAt_ = writtenAt_;
    haveView_ = true;
    lastFailure_.clear();
}

const San* Backend::view()
{
    if (demo_) {
        rules::settle(*demo_, now());
        return &*demo_;
    }
    std::string stamp = store_.stamp();
    takeWrittenAsView(stamp);
    if (!haveView_ || stamp.empty() || stamp != view_.stamp) {
        Snapshot snapshot;
        std::string error;
        if (!store_.read(snapshot, error)) {
            reportFailure(error);
            haveView_ = false;
            return nullptr;
        }
        view_ = std::move(snapshot);
        viewSettledAt_ = std::numeric_limits<long long>::min();
        haveView_ = true;
        lastFailure_.clear();
    }
    // Commands ask for the view once per record; settling is a walk over
    // every LUN and changes nothing at a time already settled to.
    long long t = now();
    if (t > viewSettledAt_) {
        rules::settle(view_.san, t);
        viewSettledAt_ = t;
    }
    return &view_.san;
}

// What a change may start from instead of parsing the file again. Settling
// only ever moves the SAN forward in time, and settling twice is the same as
// settling once at the later time; a SAN settled up to `now` or earlier is
// therefore exactly what a fresh read settled at `now` gives. The store still
// checks that the file holds the text the snapshot came from.
const Snapshot* Backend::changeBase(long long t) const
{
    if (haveWritten_)
        return t >= writtenAt_ ? &written_ : nullptr;
    if (haveView_ && t >= viewSettledAt_)
        return &view_;
    return nullptr;
}

int Backend::change(const std::function<int(San&, long long now)>& change, bool keepAlways)
{
    // Whatever a value does to the model or to its text, the caller gets a
    // code: nothing thrown here may reach the program that loaded us.
    try {
        return changeOnce(change, keepAlways);
    } catch (const std::exception&) {
        return code::InvalidArgument;
    }
}

int Backend::changeOnce(const std::function<int(San&, long long now)>& change, bool keepAlways)
{
    long long t = now();
    if (demo_) {
        rules::settle(*demo_, t);
        San copy = *demo_;
        int rc = change(copy, t);
        if (keepAlways || code::keepsChange(rc)) {
            demo_ = std::move(copy);
            ++changeCount_;
        }
        return rc;
    }
    int rc = code::Ok;
    std::string error;
    Snapshot next;
    bool stored = store_.update(
        [&](San& san) {
            rules::settle(san, t);
            rc = change(san, t);
            return keepAlways || code::keepsChange(rc);
        },
        error, changeBase(t), &next);
    if (!stored) {
        reportFailure(error);
        return code::StateFileError;
    }
    if (!next.stamp.empty()) {
        written_ = std::move(next);
        writtenAt_ = t;
        haveWritten_ = true;
        haveView_ = false;
        ++changeCount_;
    }
    return rc;
}

int Backend::fault(u64 adapter, const std::string& operation, MHbaReturnBuffer* firstError)
{
    const San* san = view();
    if (!san)
        return code::StateFileError;
    if (!rules::hasFault(*san, adapter, operation))
        return code::Ok;
    int inner = 0;
    int rc = change([&](San& s, long long) { return rules::takeFault(s, adapter, operation, inner); }, true);
    if (rc != code::Ok && inner != 0) {
        if (firstError)
            firstError->returnCode = static_cast<e_MHBA_RETURN>(inner);
        return code::Partial;
    }
    return rc;
}

bool Backend::loadDemonstration(const std::string& file, std::string& error)
{
    std::string text;
    if (!readTextFile(file, text, error))
        return false;
    San san;
    if (!scenarioFromText(text, "demonstration file \"" + file + "\"", san, error))
        return false;
    demo_ = std::move(san);
    return true;
}

void Backend::info(const std::string& text)
{
    if (handler_)
        handler_->notify(HMsgHandler::MSG_INFO, text.c_str());
}

void Backend::warning(const std::string& text)
{
    if (handler_)
        handler_->notify(HMsgHandler::MSG_WARNING, text.c_str());
}

void Backend::progress(int percent)
{
    if (handler_)
        handler_->notify(HMsgHandler::MSG_PROGRESS, &percent);
}

} // namespace sim
