#include "deferred/FutureManager.h"

#include "platform/com/Module.h"
#include "platform/host/SuiteHost.h"
#include "platform/thread/ThreadState.h"

#include <cstdint>
#include <utility>

namespace lejis {
namespace {

// The future manager that one thread's deferred work shares, made at first use. The manager by itself does not count as
// an object; its pending futures do, and keep the DLL in memory.
class SharedManager final : public platform::thread::ThreadPart {
public:
    FutureManager& Get();

    void Release() noexcept override;

private:
    // Release alone releases it: when the thread ends, pending work must not be touched.
    FutureManager* manager_ = nullptr;
};

FutureManager& SharedManager::Get() {
    if (!manager_) {
        manager_ = Microsoft::WRL::ComPtr<FutureManager>(platform::Create<FutureManager>()).Detach();
        platform::living::Leave(manager_);
        platform::module::Release();
        platform::thread::UncountObject();
    }
    return *manager_;
}

void SharedManager::Release() noexcept {
    FutureManager* const manager = std::exchange(manager_, nullptr);
    if (!manager) return;
    // This undoes what Get has done, because the manager's end counts it down again.
    platform::thread::CountObject();
    platform::module::Retain();
    manager->Release();
}

}  // namespace

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

namespace lejis::LejisUtils {

void InvokeLater(IRunnable* runnable) { platform::thread::ThisThreads<SharedManager>().Get().RunLater(runnable); }

}  // namespace lejis::LejisUtils
