#include "deferred/FutureManager.h"

#include "platform/host/SuiteHost.h"

#include <cstdint>

namespace lejis {

STDMETHODIMP FutureManager::InvokeLater(IRunnable* runnable) {
    return Guard([&] { RunLater(runnable); });
}

void FutureManager::RunLater(IRunnable* runnable) {
    RequireRunnable(runnable);
    const auto future = platform::Create<Future>();
    const std::wstring key = KeyOf(future.Get());
    pending_.emplace(key, future);
    try {
        future->Schedule(runnable, this);
    } catch (...) {
        // The future is not scheduled, so the manager would keep it for ever.
        pending_.erase(key);
        throw;
    }
}

STDMETHODIMP FutureManager::IFutureObserver_FutureCompleted(IFuture* theFuture) {
    return Guard([&] {
        // The future ends after it is off the list: its end may call back into this manager.
        const auto completed = pending_.extract(KeyOf(theFuture));
        if (!completed) throw platform::host::InvalidArgument(L"theFuture is not pending here");
    });
}

std::wstring FutureManager::KeyOf(IFuture* future) {
    return L"K" + std::to_wstring(reinterpret_cast<std::intptr_t>(future));
}

}  // namespace lejis
