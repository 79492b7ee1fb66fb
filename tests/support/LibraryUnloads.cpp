#include "support/LibraryUnloads.h"

namespace support {

HRESULT LibraryCanUnload() {
    const HMODULE library = GetModuleHandleW(L"TVLejisCore.dll");
    if (!library) return E_UNEXPECTED;
    const auto canUnload = reinterpret_cast<HRESULT(STDMETHODCALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
    return canUnload ? canUnload() : E_UNEXPECTED;
}

}  // namespace support
