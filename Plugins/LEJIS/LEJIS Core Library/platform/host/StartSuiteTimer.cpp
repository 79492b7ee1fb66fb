#include "platform/host/StartSuiteTimer.h"

#include "platform/com/LateBound.h"
#include "platform/host/RegisteredTimer.h"
#include "platform/host/ThreadTimer.h"

#include <utility>

namespace platform::host {
namespace {

// Null where the suite's timer is not registered, cannot be made, cannot be heard or cannot be started: work that
// waited for such a timer would wait for ever.
std::unique_ptr<SuiteTimer> StartRegisteredTimer(long milliseconds, const std::function<void()>& elapsed) {
    try {
        if (auto timer = CreateRegistered(L"TalvexSuite.SuiteTimer")) {
            return std::make_unique<RegisteredTimer>(std::move(timer), milliseconds, elapsed);
        }
    } catch (...) {
        // The built-in timer does as well.
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<SuiteTimer> StartSuiteTimer(long milliseconds, std::function<void()> elapsed) {
    if (auto timer = StartRegisteredTimer(milliseconds, elapsed)) return timer;
    return std::make_unique<ThreadTimer>(milliseconds, std::move(elapsed));
}

}  // namespace platform::host
