#include "platform/host/RegisteredTimer.h"

#include "platform/com/LateBound.h"
#include "platform/ComError.h"
#include "platform/host/ElapsedEvent.h"
#include "platform/host/TimerSink.h"

#include <utility>

using Microsoft::WRL::ComPtr;

namespace platform::host {

RegisteredTimer::RegisteredTimer(ComPtr<IDispatch> timer, long milliseconds, std::function<void()> elapsed)
    : timer_(std::move(timer)) {
    const ElapsedEvent event = FindElapsedEvent(timer_.Get());
    sink_ = Create<TimerSink>(event.source, event.number, std::move(elapsed));
    events_ = event.point;
    Check(events_->Advise(sink_.Get(), &cookie_));
    try {
        Start(milliseconds);
    } catch (...) {
        Disconnect();
        throw;
    }
}

RegisteredTimer::~RegisteredTimer() { Disconnect(); }

void RegisteredTimer::Start(long milliseconds) {
    PutMember(timer_.Get(), L"Interval", milliseconds);
    PutMember(timer_.Get(), L"Enabled", true);
}

void RegisteredTimer::Stop() noexcept {
    try {
        PutMember(timer_.Get(), L"Enabled", false);
    } catch (...) {
        // A timer that cannot be stopped ticks into a future that waits for no tick.
    }
}

void RegisteredTimer::Disconnect() noexcept {
    sink_->Disconnect();
    Stop();
    events_->Unadvise(cookie_);
}

}  // namespace platform::host
