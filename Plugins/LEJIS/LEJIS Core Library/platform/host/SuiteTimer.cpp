#include "platform/host/SuiteTimer.h"

#include "platform/com/LateBound.h"
#include "platform/host/RegisteredTimer.h"
#include "platform/host/ThreadTimer.h"

#include <utility>

namespace platform::host {

std::unique_ptr<SuiteTimer> CreateSuiteTimer(std::function<void()> elapsed) {
    if (auto timer = CreateRegistered(L"TalvexSuite.SuiteTimer")) {
        return std::make_unique<RegisteredTimer>(std::move(timer), std::move(elapsed));
    }
    return std::make_unique<ThreadTimer>(std::move(elapsed));
}

}  // namespace platform::host
