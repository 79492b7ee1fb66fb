#include "deferred/Future.h"

#include "platform/host/SuiteHost.h"
#include "platform/host/SuiteTimer.h"

#include <utility>

using Microsoft::WRL::ComPtr;

namespace lejis {
namespace {

constexpr long kDelayMilliseconds = 100;

}  // namespace

void RequireRunnable(IRunnable* runnable) {
    if (!runnable) throw platform::host::InvalidArgument(L"runnable cannot be Nothing");
}

STDMETHODIMP Future::Execute(IRunnable* runnable, IFutureObserver* observer) {
    return Guard([&] { Schedule(runnable, observer); });
}

STDMETHODIMP Future::get_Completed(VARIANT_BOOL* result) {
    return Guard(result, [&] { return completed_; });
}

void Future::Schedule(IRunnable* runnable, IFutureObserver* observer) {
    RequireRunnable(runnable);
    invokeTimer_ = platform::host::StartSuiteTimer(kDelayMilliseconds, [this] { m_invokeTimer_Elapsed(); });
    runnable_ = runnable;
    observer_ = observer;
    isScheduled_ = true;
}

void Future::m_invokeTimer_Elapsed() {
    // The observer releases the future, and is as a rule the last to hold it.
    const ComPtr<IFuture> self(this);
    invokeTimer_->Stop();
    // A timer that cannot be stopped ticks on.
    if (!std::exchange(isScheduled_, false)) return;
    // The work may give this future other work, which a later tick runs. So this tick first takes out its work and its
    // observer.
    const ComPtr<IRunnable> runnable = runnable_;
    const ComPtr<IFutureObserver> observer = std::move(observer_);
    // A failure ends the tick here. The future stays incomplete, and its manager goes on keeping it. The future no
    // longer holds its observer, so the manager can still end.
    platform::Check(runnable->Run());
    completed_ = true;
    if (!isScheduled_) runnable_.Reset();
    if (observer) platform::Check(observer->FutureCompleted(self.Get()));
}

}  // namespace lejis
