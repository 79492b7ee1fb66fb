#include "deferred/InvokeLater.h"

#include "deferred/FutureManager.h"
#include "platform/com/Module.h"
#include "platform/thread/ThreadState.h"

#include <utility>

namespace lejis::LejisUtils {
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

void InvokeLater(IRunnable* runnable) { platform::thread::ThisThreads<SharedManager>().Get().RunLater(runnable); }

}  // namespace lejis::LejisUtils
