#include "apartments/ChildProcess.h"

#include "engine/HeapCensus.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace apartments {
namespace {

constexpr DWORD kTimeLimit = 120'000;

// Not 0, which is what is seen of a process that was killed from outside.
constexpr int kAllIsWell = 7;

void EndHangingProcess() {
    Sleep(kTimeLimit);
    std::fputs("The process hangs.\n", stderr);
    // A regular end would wait for the loader, as what hangs may do.
    TerminateProcess(GetCurrentProcess(), EXIT_FAILURE);
}

bool IsHeapSound() {
    const bool sound = fuzzing::HeapIsSound();
    if (!sound) std::fputs("The heap is broken.\n", stderr);
    return sound;
}

}  // namespace

void InChildProcess(const std::function<bool()>& work) {
    EXPECT_EXIT(
        {
            std::thread(EndHangingProcess).detach();
            const bool isWell = work();
            std::_Exit(IsHeapSound() && isWell ? kAllIsWell : EXIT_FAILURE);
        },
        testing::ExitedWithCode(kAllIsWell), "");
}

}  // namespace apartments
