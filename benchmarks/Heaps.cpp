#include "Heaps.h"

#include <windows.h>

#include <stdexcept>

namespace benchmarks {

double BytesOnHeaps() {
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(ARRAYSIZE(heaps), heaps);
    if (count == 0 || count > ARRAYSIZE(heaps)) throw std::runtime_error("cannot list the process's heaps");
    double bytes = 0;
    for (DWORD index = 0; index < count; ++index) {
        HeapLock(heaps[index]);
        for (PROCESS_HEAP_ENTRY entry{}; HeapWalk(heaps[index], &entry);) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += static_cast<double>(entry.cbData + entry.cbOverhead);
        }
        HeapUnlock(heaps[index]);
    }
    return bytes;
}

}  // namespace benchmarks
