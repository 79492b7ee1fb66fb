#pragma once

#include <windows.h>

#include <string>

namespace lejis_client {

// A call into the library failed; the description is the library's own.
struct LibraryError {
    HRESULT number;
    std::wstring description;
};

}  // namespace lejis_client
