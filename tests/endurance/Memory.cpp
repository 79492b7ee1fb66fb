#include "endurance/Memory.h"

#include "support/ComCheck.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace endurance {
namespace {

// What the system tells of all handles, as documented beside NtQuerySystemInformation.
constexpr int kSystemHandleInformation = 16;
constexpr LONG kBufferTooSmall = static_cast<LONG>(0xC0000004);

struct HandleEntry {
    ULONG process;
    BYTE type;
    BYTE flags;
    USHORT value;
    void* object;
    ULONG access;
};

struct HandleList {
    ULONG count;
    HandleEntry first[1];
};

using Query = LONG(WINAPI*)(int, void*, ULONG, ULONG*);

// Wine's GetProcessHandleCount answers 0.
unsigned long HandlesInUse() {
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    std::vector<HandleEntry> space(4096);
    LONG status = 0;
    while ((status = query(kSystemHandleInformation, space.data(),
                           static_cast<ULONG>(space.size() * sizeof(HandleEntry)), nullptr)) == kBufferTooSmall) {
        space.resize(space.size() * 2);
    }
    EXPECT_EQ(0, status);
    const auto* list = reinterpret_cast<const HandleList*>(space.data());
    return static_cast<unsigned long>(
        std::count_if(list->first, list->first + list->count,
                      [own = GetCurrentProcessId()](const HandleEntry& entry) { return entry.process == own; }));
}

}  // namespace

// Wine's PrivateUsage is 0.
std::size_t PrivateBytes() {
    std::size_t bytes = 0;
    MEMORY_BASIC_INFORMATION region{};
    for (const char* at = nullptr; VirtualQuery(at, &region, sizeof(region)) != 0;) {
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) bytes += region.RegionSize;
        at = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
    }
    return bytes;
}

Memory MemoryInUse() { return {PrivateBytes(), HandlesInUse()}; }

}  // namespace endurance
