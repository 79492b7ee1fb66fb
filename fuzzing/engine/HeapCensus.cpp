#include "engine/HeapCensus.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

namespace fuzzing {
namespace {

class Heaps {
public:
    Heaps()
        : count_(std::min<size_t>(GetProcessHeaps(static_cast<DWORD>(heaps_.size()), heaps_.data()), heaps_.size())) {}

    std::span<const HANDLE> All() const { return {heaps_.data(), count_}; }

private:
    std::array<HANDLE, 64> heaps_{};
    size_t count_;
};

// Wine's heap, when it is checked, keeps some freed blocks back, filled with this, and lists them as in use.
bool IsKeptBack(const PROCESS_HEAP_ENTRY& entry) {
    constexpr unsigned char kFreed[] = {0xEE, 0xFE, 0xEE, 0xFE};
    return std::memcmp(entry.lpData, kFreed, std::min<size_t>(entry.cbData, sizeof kFreed)) == 0;
}

size_t BlocksIn(HANDLE heap) {
    size_t blocks = 0;
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) && !IsKeptBack(entry)) ++blocks;
    }
    return blocks;
}

}  // namespace

bool HeapIsChecked() {
    constexpr size_t kSize = 10;
    const HANDLE heap = HeapCreate(0, 0, 0);
    auto* const block = static_cast<volatile char*>(HeapAlloc(heap, 0, kSize));
    // A byte too far, on purpose.
    block[kSize] = static_cast<char>(~block[kSize]);
    const bool seen = !HeapValidate(heap, 0, nullptr);
    block[kSize] = static_cast<char>(~block[kSize]);
    HeapDestroy(heap);
    return seen;
}

bool HeapIsSound() {
    const Heaps heaps;
    return std::ranges::all_of(heaps.All(), [](HANDLE heap) { return HeapValidate(heap, 0, nullptr) != FALSE; });
}

size_t BlocksInUse() {
    size_t blocks = 0;
    const Heaps heaps;
    for (const HANDLE heap : heaps.All()) blocks += BlocksIn(heap);
    return blocks;
}

}  // namespace fuzzing
