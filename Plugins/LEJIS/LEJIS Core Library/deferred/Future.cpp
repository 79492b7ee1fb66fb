#include "deferred/Future.h"

#include "deferred/RunnableCheck.h"
#include "platform/host/SuiteTimer.h"

#include <utility>

using Microsoft::WRL::ComPtr;

namespace lejis {
namespace {

constexpr long kDelayMilliseconds = 100;

}  // namespace

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
    // The observer lets go of the future, as a rule the last to hold it.
    const ComPtr<IFuture> self(this);
    invokeTimer_->Stop();
    // A timer that cannot be stopped ticks on.
    if (!std::exchange(isScheduled_, false)) return;
    // The work may give this future other work, which a later tick runs. So what this tick runs and whom it tells are
    // taken out before.
    const ComPtr<IRunnable> runnable = runnable_;
    const ComPtr<IFutureObserver> observer = std::move(observer_);
    // A failure ends the tick here: the future stays incomplete, and whoever keeps it goes on keeping it. It no longer
    // holds its observer, so a manager that keeps it can still end.
    platform::Check(runnable->Run());
    completed_ = true;
    if (!isScheduled_) runnable_.Reset();
    if (observer) platform::Check(observer->FutureCompleted(self.Get()));
}

}  // namespace lejis
