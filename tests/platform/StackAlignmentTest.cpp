// 32-bit Windows promises four bytes of stack alignment to what it calls. The compiler would count on sixteen.
#ifdef __i386__

#include "deferred/Future.h"
#include "foundation/NullableNumber.h"
#include "support/OwnTimer.h"
#include "unit_support/RecordingRunnable.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>

namespace {

// Calls a function of the platform's convention while the stack lies `offset` bytes below a multiple of sixteen.
template <size_t kWords>
HRESULT CallOnStack(uintptr_t offset, void* function, std::array<uintptr_t, kWords> words) {
    auto result = reinterpret_cast<uintptr_t>(function);
    uintptr_t left = kWords;
    const uintptr_t* first = words.data();
    asm volatile(
        "movl %%esp, %%esi\n\t"
        "andl $-16, %%esp\n\t"
        "subl %%edi, %%esp\n"
        "1:\n\t"
        "pushl -4(%%edx, %%ecx, 4)\n\t"
        "decl %%ecx\n\t"
        "jnz 1b\n\t"
        "call *%%eax\n\t"
        "movl %%esi, %%esp"
        : "+a"(result), "+c"(left), "+d"(first)
        : "D"(offset)
        : "esi", "memory", "cc");
    return static_cast<HRESULT>(result);
}

void* Method(IUnknown* object, size_t index) { return (*reinterpret_cast<void***>(object))[index]; }

uintptr_t Word(const void* pointer) { return reinterpret_cast<uintptr_t>(pointer); }

class StackAlignment : public testing::TestWithParam<uintptr_t> {};

TEST_P(StackAlignment, DoesNotMatterToAMethod) {
    constexpr size_t kPutValue = 8;
    const auto holder = platform::Create<lejis::NullableInteger>();
    const _variant_t value(3.5);
    std::array<uintptr_t, 5> words{Word(static_cast<INullableInteger*>(holder.Get()))};
    std::memcpy(&words[1], &value, sizeof(VARIANT));
    EXPECT_EQ(S_OK, CallOnStack(GetParam(), Method(holder.Get(), kPutValue), words));
    _variant_t held;
    EXPECT_EQ(S_OK, holder->get_Value(&held));
    EXPECT_EQ(_variant_t(short{4}), held);
}

TEST_P(StackAlignment, DoesNotMatterToDeferredWork) {
    constexpr size_t kInvoke = 6;
    constexpr uintptr_t kElapsed = 7;
    const support::OwnTimerClass registered(support::TimerKind::kTellsClass);
    const auto future = platform::Create<lejis::Future>();
    const auto runnable = platform::Create<support::RecordingRunnable>();
    future->Schedule(runnable.Get(), nullptr);
    IDispatch* const sink = registered.timers[0]->sinks[0].Get();
    DISPPARAMS none{};
    EXPECT_EQ(S_OK, CallOnStack<9>(GetParam(), Method(sink, kInvoke),
                                   {Word(sink), kElapsed, Word(&IID_NULL), 0, DISPATCH_METHOD, Word(&none), 0, 0, 0}));
    EXPECT_EQ(1, runnable->runs);
}

INSTANTIATE_TEST_SUITE_P(Offset, StackAlignment, testing::Values(0, 4, 8, 12));

}  // namespace

#endif
