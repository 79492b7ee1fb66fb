#include "kit/Ticks.h"

#include <windows.h>

namespace kit_tests {
namespace {

constexpr UINT kIntervalInMilliseconds = 50;

int ticksSeen = 0;
UINT_PTR timer = 0;

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) { ++ticksSeen; }

}  // namespace

Ticks::Ticks() {
    ticksSeen = 0;
    timer = SetTimer(nullptr, 0, kIntervalInMilliseconds, Tick);
}

Ticks::~Ticks() { KillTimer(nullptr, timer); }

int Ticks::Seen() const { return ticksSeen; }

}  // namespace kit_tests
