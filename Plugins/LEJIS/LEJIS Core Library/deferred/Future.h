#pragma once

#include "platform/com/ComObject.h"
#include "platform/host/SuiteTimer.h"

#include <TVLejisCore.h>
#include <wrl/client.h>

#include <memory>

namespace lejis {

// Throws "runnable cannot be Nothing" without a runnable.
void RequireRunnable(IRunnable* runnable);

// One deferred call. Whoever wants the call to happen keeps the future alive: a future that is released before its tick
// never runs.
class Future final : public platform::ComObject<::Future, IFuture> {
public:
    STDMETHODIMP Execute(IRunnable* runnable, IFutureObserver* observer) override;
    STDMETHODIMP get_Completed(VARIANT_BOOL* result) override;

    // Replaces work that the future still waits for. Work that runs already goes on.
    void Schedule(IRunnable* runnable, IFutureObserver* observer);

private:
    void m_invokeTimer_Elapsed();

    Microsoft::WRL::ComPtr<IRunnable> runnable_;
    Microsoft::WRL::ComPtr<IFutureObserver> observer_;
    bool isScheduled_ = false;
    bool completed_ = false;
    std::unique_ptr<platform::host::SuiteTimer> invokeTimer_;
};

}  // namespace lejis
