// A component of the host suite, found by ProgID.
#pragma once

#include "platform/thread/ThreadPart.h"

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform::host {

// Made at first use and then kept, one for each thread that uses the library: an object of one apartment must not be
// called from another.
class HostComponent : public thread::ThreadPart {
public:
    explicit HostComponent(const wchar_t* progId) : progId_(progId) {}

    // The component; null where the suite is not registered. Raises when it is registered and cannot be made.
    Microsoft::WRL::ComPtr<IDispatch> Get();

    void Release() noexcept override;

private:
    const wchar_t* progId_;
    // Released by Release alone: a ComPtr would call COM when the thread ends.
    IDispatch* component_ = nullptr;
    bool lookedFor_ = false;
};

}  // namespace platform::host
