#include "deferred/Future.h"

#include "deferred/RunnableCheck.h"

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
    runnable_ = runnable;
    observer_ = observer;
    invokeTimer_ = platform::host::CreateSuiteTimer([this] { OnElapsed(); });
    invokeTimer_->SetInterval(kDelayMilliseconds);
    invokeTimer_->SetEnabled(true);
}

void Future::OnElapsed() {
    // The observer lets go of the future, as a rule the last to hold it.
    const ComPtr<IFuture> self(this);
    invokeTimer_->SetEnabled(false);
    // A failure ends the tick here: the future stays incomplete and whoever keeps it goes on keeping it.
    // The work may give this future other work, and must not end while it runs.
    const ComPtr<IRunnable> runnable = runnable_;
    if (runnable) platform::Check(runnable->Run());
    completed_ = true;
    runnable_.Reset();
    const ComPtr<IFutureObserver> observer = std::move(observer_);
    if (observer) platform::Check(observer->FutureCompleted(self.Get()));
}

}  // namespace lejis
