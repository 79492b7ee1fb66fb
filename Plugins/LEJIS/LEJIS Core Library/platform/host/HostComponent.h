// A component of the host suite, found by ProgID.
#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform::host {

// Made on first use and then kept, one for each thread that uses the library: an object of one apartment must not be
// called from another. It is not released when the thread ends, for the thread has left COM by then; Release is called
// while COM is still there.
class HostComponent {
public:
    explicit constexpr HostComponent(const wchar_t* progId) : progId_(progId) {}

    // The component; null where the suite is not registered. Raises when it is registered and cannot be made.
    Microsoft::WRL::ComPtr<IDispatch> Get();

    void Release() noexcept;

private:
    const wchar_t* progId_;
    IDispatch* component_ = nullptr;
    bool lookedFor_ = false;
};

}  // namespace platform::host
