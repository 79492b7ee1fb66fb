// Faults planted on purpose: one case in some hundreds has one, and each kind must be found.
#include "com/FailureCheck.h"
#include "foundation/NullableDate.h"
#include "platform/com/UnknownObject.h"
#include "targets/Targets.h"

#include <windows.h>

#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>

namespace fuzzing {
namespace {

constexpr uint32_t kOnceIn = 300;

volatile ULONG_PTR leaked = 0;

void Overrun() {
    constexpr size_t kSize = 10;
    // As a number, so that the compiler does not see what is done.
    const auto address = reinterpret_cast<ULONG_PTR>(std::malloc(kSize));
    *reinterpret_cast<volatile char*>(address + kSize) = 1;
    leaked = address;
}

void UseAfterFree() {
    const auto address = reinterpret_cast<ULONG_PTR>(std::malloc(100));
    std::free(reinterpret_cast<void*>(address));
    // Past the list that the heap keeps in its free blocks.
    *reinterpret_cast<volatile char*>(address + 50) = 1;
}

void LeakReference() { platform::Create<lejis::NullableDate>().Get()->AddRef(); }

void LeakMemory() { leaked = reinterpret_cast<ULONG_PTR>(std::malloc(100)); }

void FailSilently() {
    BeforeCall();
    SetErrorInfo(0, nullptr);
    AfterCall(CallKind::kMember, E_FAIL, L"planted");
}

void FailWithAnothersDescription() {
    BeforeCall();
    AfterCall(CallKind::kMember, E_FAIL, L"planted");
}

void Hang() {
    for (volatile bool forEver = true; forEver;) Sleep(1);
}

// Taken, not touched: the machine that looks for it is not to suffer.
void Devour() {
    constexpr size_t kSize = size_t{300} << 20;
    VirtualAlloc(nullptr, kSize, MEM_COMMIT, PAGE_READWRITE);
    Hang();
}

void RaiseException() { throw std::runtime_error("planted"); }

void Crash() { *static_cast<volatile int*>(nullptr) = 1; }

void Trap() { __builtin_trap(); }

void Abort() { std::abort(); }

const std::map<std::string, void (*)()> kFaults = {
    {"nothing", [] {}},
    {"overrun", Overrun},
    {"use-after-free", UseAfterFree},
    {"leaked-object", LeakReference},
    {"leaked-memory", LeakMemory},
    {"silent-failure", FailSilently},
    {"stale-failure", FailWithAnothersDescription},
    {"exception", RaiseException},
    {"hang", Hang},
    {"devour", Devour},
    {"crash", Crash},
    {"trap", Trap},
    {"abort", Abort},
};

// The environment says which fault, by PLANTED_FAULT.
class PlantedTarget final : public Target {
public:
    void Run(Case& input) override {
        if (input.OneIn(kOnceIn)) fault_();
    }

private:
    static void (*Chosen())() {
        const char* const name = std::getenv("PLANTED_FAULT");
        return kFaults.at(name ? name : "nothing");
    }

    void (*const fault_)() = Chosen();
};

}  // namespace

std::unique_ptr<Target> CreatePlanted() { return std::make_unique<PlantedTarget>(); }

}  // namespace fuzzing
