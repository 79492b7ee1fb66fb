#include "deferred/SharedManager.h"

#include "platform/com/Module.h"
#include "platform/thread/ThreadState.h"

#include <utility>

namespace lejis {

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
    // Its end takes back what Get has given.
    platform::thread::CountObject();
    platform::module::Retain();
    manager->Release();
}

}  // namespace lejis
