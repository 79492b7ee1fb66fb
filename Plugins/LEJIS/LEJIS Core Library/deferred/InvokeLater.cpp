#include "deferred/InvokeLater.h"

#include "deferred/FutureManager.h"
#include "platform/com/Living.h"
#include "platform/com/Module.h"

namespace lejis::LejisUtils {
namespace {

// One for each thread, made on first use and kept. It alone does not keep the DLL in memory; its pending futures do.
class SharedManager {
public:
    SharedManager() {
        platform::living::Leave(manager_.Get());
        platform::module::Release();
    }
    ~SharedManager() { platform::module::Retain(); }
    SharedManager(const SharedManager&) = delete;
    SharedManager& operator=(const SharedManager&) = delete;

    FutureManager& Get() const { return *manager_.Get(); }

private:
    Microsoft::WRL::ComPtr<FutureManager> manager_ = platform::Create<FutureManager>();
};

}  // namespace

void InvokeLater(IRunnable* runnable) {
    thread_local const SharedManager shared;
    shared.Get().RunLater(runnable);
}

}  // namespace lejis::LejisUtils
