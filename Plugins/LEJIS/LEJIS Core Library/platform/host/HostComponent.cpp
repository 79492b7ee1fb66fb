#include "platform/host/HostComponent.h"

#include "platform/com/LateBound.h"

#include <utility>

namespace platform::host {

Microsoft::WRL::ComPtr<IDispatch> HostComponent::Get() {
    if (!lookedFor_) {
        component_ = CreateRegistered(progId_).Detach();
        lookedFor_ = true;
    }
    return component_;
}

void HostComponent::Release() noexcept {
    lookedFor_ = false;
    // The component's end may call back into the library.
    if (IDispatch* const component = std::exchange(component_, nullptr)) component->Release();
}

}  // namespace platform::host
