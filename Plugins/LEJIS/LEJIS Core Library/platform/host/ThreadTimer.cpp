#include "platform/host/ThreadTimer.h"

#include "platform/ComError.h"

#include <unordered_map>
#include <utility>

namespace platform::host {
namespace {

// The system tells a tick only its timer's number.
thread_local std::unordered_map<UINT_PTR, ThreadTimer*> running;

}  // namespace

ThreadTimer::ThreadTimer(std::function<void()> elapsed) : elapsed_(std::move(elapsed)) {}

ThreadTimer::~ThreadTimer() { Stop(); }

void ThreadTimer::SetInterval(long milliseconds) {
    interval_ = milliseconds > 0 ? static_cast<UINT>(milliseconds) : USER_TIMER_MINIMUM;
    if (id_ != 0) Start();
}

void ThreadTimer::SetEnabled(bool enabled) { enabled ? Start() : Stop(); }

void ThreadTimer::Start() {
    Stop();
    id_ = SetTimer(nullptr, 0, interval_, Tick);
    if (id_ == 0) Check(HRESULT_FROM_WIN32(GetLastError()));
    running.emplace(id_, this);
}

void ThreadTimer::Stop() noexcept {
    if (id_ == 0) return;
    KillTimer(nullptr, id_);
    running.erase(std::exchange(id_, 0));
}

void CALLBACK ThreadTimer::Tick(HWND, UINT, UINT_PTR id, DWORD) noexcept {
    // A tick may still be on its way when its timer has been stopped.
    const auto entry = running.find(id);
    if (entry == running.end()) return;
    try {
        // A copy: the work may destroy the timer.
        const std::function<void()> elapsed = entry->second->elapsed_;
        elapsed();
    } catch (...) {
        // The system's code must not be crossed by an exception; a failed tick is over.
    }
}

}  // namespace platform::host
