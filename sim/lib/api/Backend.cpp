#include "api/Backend.h"

#include "api/HMsgHandler.h"
#include "api/MHbaReturnBuffer.h"
#include "model/Codes.h"
#include "model/Rules.h"
#include "model/Scenario.h"
#include "state/Clock.h"

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

const San* Backend::view()
{
    if (demo_) {
        rules::settle(*demo_, now());
        return &*demo_;
    }
    std::string stamp = store_.stamp();
    if (!haveCached_ || stamp.empty() || stamp != cachedStamp_) {
        San san;
        std::string error;
        if (!store_.read(san, error)) {
            reportFailure(error);
            haveCached_ = false;
            return nullptr;
        }
        cached_ = std::move(san);
        cachedStamp_ = store_.stamp();
        haveCached_ = true;
        lastFailure_.clear();
    }
    rules::settle(cached_, now());
    return &cached_;
}

int Backend::change(const std::function<int(San&, long long now)>& change, bool keepAlways)
{
    long long t = now();
    if (demo_) {
        rules::settle(*demo_, t);
        San copy = *demo_;
        int rc = change(copy, t);
        if (keepAlways || !code::isFailure(rc) || rc == code::Partial)
            demo_ = std::move(copy);
        return rc;
    }
    int rc = code::Ok;
    std::string error;
    bool stored = store_.update([&](San& san) {
        rules::settle(san, t);
        rc = change(san, t);
        return keepAlways || rc == code::Ok || rc == code::OkRestartRequired;
    }, error);
    if (!stored) {
        reportFailure(error);
        return code::StateFileError;
    }
    haveCached_ = false;
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
