#include "platform/host/ThreadTimer.h"

#include "platform/ComError.h"
#include "platform/thread/ThreadState.h"

#include <unordered_map>
#include <utility>

namespace platform::host {
namespace {

// The system tells a tick only its timer's number.
struct RunningTimers final : thread::ThreadPart {
    std::unordered_map<UINT_PTR, ThreadTimer*> byNumber;

    // A running timer belongs to an object that still lives.
    void Release() noexcept override {}
};

std::unordered_map<UINT_PTR, ThreadTimer*>& Running() { return thread::ThisThreads<RunningTimers>().byNumber; }

}  // namespace

ThreadTimer::ThreadTimer(long milliseconds, std::function<void()> elapsed) : elapsed_(std::move(elapsed)) {
    auto& running = Running();
    id_ = SetTimer(nullptr, 0, static_cast<UINT>(milliseconds), Tick);
    if (id_ == 0) Check(HRESULT_FROM_WIN32(GetLastError()));
    running.emplace(id_, this);
}

ThreadTimer::~ThreadTimer() { Stop(); }

void ThreadTimer::Stop() noexcept {
    if (id_ == 0) return;
    KillTimer(nullptr, id_);
    Running().erase(std::exchange(id_, 0));
}

void CALLBACK ThreadTimer::Tick(HWND, UINT, UINT_PTR id, DWORD) noexcept {
    try {
        // A tick may still be on its way when its timer has been stopped.
        const auto entry = Running().find(id);
        if (entry == Running().end()) return;
        // A copy: the work may destroy the timer.
        const std::function<void()> elapsed = entry->second->elapsed_;
        elapsed();
    } catch (...) {
        // The system's code must not be crossed by an exception; a failed tick is over.
    }
}

}  // namespace platform::host
