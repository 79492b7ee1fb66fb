#include "platform/host/SuiteServices.h"

#include "platform/com/LateBound.h"
#include "platform/host/HostComponent.h"
#include "platform/host/MessagePump.h"
#include "platform/thread/ThreadState.h"

#include <utility>

namespace platform::host {
namespace {

// The host's small code for an invalid argument.
constexpr long kInvalidArgument = 5;

// Where the built-in error numbers begin, in the range that the platform leaves to components.
constexpr HRESULT kBuiltInErrors = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_ITF, 0x0200);

struct Services final : HostComponent {
    Services() : HostComponent(L"TalvexSuite.SuiteServices") {}
};

HRESULT ErrorNumber(long kind) {
    const HRESULT builtIn = kBuiltInErrors + kind;
    try {
        const auto host = thread::ThisThreads<Services>().Get();
        if (!host) return builtIn;
        const auto number = static_cast<HRESULT>(static_cast<long>(CallMember(host.Get(), L"ErrorNumber", {kind})));
        return FAILED(number) ? number : builtIn;
    } catch (...) {
        // A host that cannot name the error must not hide it: the description matters more than its number.
        return builtIn;
    }
}

}  // namespace

void YieldToHost() {
    if (const auto host = thread::ThisThreads<Services>().Get()) {
        CallMember(host.Get(), L"Yield");
    } else {
        PumpMessages();
    }
}

ComError InvalidArgument(std::wstring description) {
    return ComError(ErrorNumber(kInvalidArgument), std::move(description));
}

}  // namespace platform::host
