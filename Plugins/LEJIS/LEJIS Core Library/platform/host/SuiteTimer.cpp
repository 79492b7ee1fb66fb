#include "platform/host/SuiteTimer.h"

#include "platform/com/LateBound.h"
#include "platform/ComError.h"
#include "platform/host/ElapsedEvent.h"
#include "platform/thread/ThreadState.h"

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <unordered_map>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace platform::host {
namespace {

class ThreadTimer;

// The system tells a tick only the number of its timer.
struct RunningTimers final : thread::ThreadPart {
    std::unordered_map<UINT_PTR, ThreadTimer*> byNumber;

    // A running timer belongs to an object that still lives.
    void Release() noexcept override {}
};

std::unordered_map<UINT_PTR, ThreadTimer*>& Running() { return thread::ThisThreads<RunningTimers>().byNumber; }

// The built-in timer: it needs no window, only a thread that pumps messages.
class ThreadTimer final : public SuiteTimer {
public:
    ThreadTimer(long milliseconds, std::function<void()> elapsed);
    ~ThreadTimer() override;

    void Stop() noexcept override;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR id, DWORD) noexcept;

    std::function<void()> elapsed_;
    UINT_PTR id_ = 0;
};

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
        // An exception must not cross the system's code. A failed tick is over.
    }
}

// The host suite's own timer, TalvexSuite.SuiteTimer.
class RegisteredTimer final : public SuiteTimer {
public:
    // Connects to the timer's event and starts the timer. Throws when either fails.
    RegisteredTimer(ComPtr<IDispatch> timer, long milliseconds, std::function<void()> elapsed);
    ~RegisteredTimer() override;

    void Stop() noexcept override;

private:
    void Start(long milliseconds);
    void Disconnect() noexcept;

    ComPtr<IDispatch> timer_;
    ComPtr<TimerSink> sink_;
    ComPtr<IConnectionPoint> events_;
    DWORD cookie_ = 0;
};

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
        // A timer that cannot be stopped goes on ticking for a future that expects no tick.
    }
}

void RegisteredTimer::Disconnect() noexcept {
    sink_->Disconnect();
    Stop();
    events_->Unadvise(cookie_);
}

// Null when the suite's timer is not registered, or cannot be made, heard or started: work that waited for such a timer
// would wait for ever.
std::unique_ptr<SuiteTimer> StartRegisteredTimer(long milliseconds, const std::function<void()>& elapsed) {
    try {
        if (auto timer = CreateRegistered(L"TalvexSuite.SuiteTimer")) {
            return std::make_unique<RegisteredTimer>(std::move(timer), milliseconds, elapsed);
        }
    } catch (...) {
        // The built-in timer takes its place.
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<SuiteTimer> StartSuiteTimer(long milliseconds, std::function<void()> elapsed) {
    if (auto timer = StartRegisteredTimer(milliseconds, elapsed)) return timer;
    return std::make_unique<ThreadTimer>(milliseconds, std::move(elapsed));
}

}  // namespace platform::host
