#include "platform/host/HostComponent.h"

#include "platform/com/LateBound.h"

namespace platform::host {

Microsoft::WRL::ComPtr<IDispatch> HostComponent::Get() {
    if (!lookedFor_) {
        component_ = CreateRegistered(progId_).Detach();
        lookedFor_ = true;
    }
    return component_;
}

void HostComponent::Release() noexcept {
    if (component_) component_->Release();
    component_ = nullptr;
    lookedFor_ = false;
}

}  // namespace platform::host
