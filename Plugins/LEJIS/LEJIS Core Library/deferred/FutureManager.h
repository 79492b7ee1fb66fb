// Runnables that run later, and the manager that keeps them alive until then.
#pragma once

#include "deferred/Future.h"
#include "platform/com/ComObject.h"

#include <TVLejisCore.h>
#include <wrl/client.h>

#include <map>
#include <string>

namespace lejis {

// Keeps pending futures alive; each of them keeps the manager alive, as its observer, until it has run.
class FutureManager final : public platform::ComObject<::FutureManager, IFutureManager, IFutureObserver> {
public:
    STDMETHODIMP InvokeLater(IRunnable* runnable) override;
    STDMETHODIMP FutureCompleted(IFuture* theFuture) override { return IFutureObserver_FutureCompleted(theFuture); }

    void RunLater(IRunnable* runnable);

    size_t PendingCount() const { return pending_.size(); }

private:
    STDMETHODIMP IFutureObserver_FutureCompleted(IFuture* theFuture);

    static std::wstring KeyOf(IFuture* future);

    std::map<std::wstring, Microsoft::WRL::ComPtr<IFuture>> pending_;
};

}  // namespace lejis

namespace lejis::LejisUtils {

// Runs the runnable a moment later on this thread, from its message loop, and keeps it alive until then.
void InvokeLater(IRunnable* runnable);

}  // namespace lejis::LejisUtils
