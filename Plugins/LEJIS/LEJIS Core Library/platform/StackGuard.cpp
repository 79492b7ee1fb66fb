// The stack's guard: the number that compiled functions put before their return addresses and compare before they
// return, and the handler for a changed number. The compiler's own guard draws the number from the system's
// cryptography. For that Windows loads three libraries while it loads this one, which is forbidden then, and twice as
// slow as all the rest.
#include <windows.h>

#include <cstdint>
#include <initializer_list>

extern "C" {

uintptr_t __stack_chk_guard;

// Ends the process at once: none of its handlers may run on the overrun stack.
[[noreturn]] void __stack_chk_fail() {
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_STACK_BUFFER_OVERRUN));
    __builtin_trap();
}
}

namespace {

// The number comes from values that another process cannot know. Its zero byte is the end of a text, which an
// overrunning copy of a text does not write.
__attribute__((constructor, no_stack_protector)) void Draw() {
    LARGE_INTEGER ticks{};
    FILETIME now{};
    QueryPerformanceCounter(&ticks);
    GetSystemTimeAsFileTime(&now);
    const uint64_t time = (uint64_t{now.dwHighDateTime} << 32) | now.dwLowDateTime;
    uint64_t drawn = reinterpret_cast<uintptr_t>(&now) ^ reinterpret_cast<uintptr_t>(&__stack_chk_guard);
    for (const uint64_t word : {time, static_cast<uint64_t>(ticks.QuadPart), uint64_t{GetCurrentProcessId()},
                                uint64_t{GetCurrentThreadId()}}) {
        constexpr uint64_t kMix = 0x9e3779b97f4a7c15;
        drawn = (drawn ^ word) * kMix;
        drawn ^= drawn >> 29;
    }
    __stack_chk_guard = static_cast<uintptr_t>(drawn) & ~uintptr_t{0xff};
}

}  // namespace
