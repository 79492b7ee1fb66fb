// Texts that Windows has for its own things.
#pragma once

#include <windows.h>

#include <string>

namespace lejis_client {

// What Windows says about an error, without a full stop or line break at its end.
std::wstring SystemMessage(DWORD error);

// The number in the usual form: 0x80004005.
std::wstring Hexadecimal(HRESULT number);

}  // namespace lejis_client
