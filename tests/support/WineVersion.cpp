#include "support/WineVersion.h"

#include <windows.h>

#include <cstdlib>

namespace support {

int WineVersion() {
    using GetVersion = const char*(CDECL*)();
    const FARPROC function = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version");
    return function ? std::atoi(reinterpret_cast<GetVersion>(reinterpret_cast<void*>(function))()) : 0;
}

}  // namespace support
