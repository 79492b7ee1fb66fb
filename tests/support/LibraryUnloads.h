// Whether the registered library lets go when its clients have.
#pragma once

#include <windows.h>

namespace support {

// What the loaded library's DllCanUnloadNow answers; E_UNEXPECTED when it is not loaded.
HRESULT LibraryCanUnload();

}  // namespace support
