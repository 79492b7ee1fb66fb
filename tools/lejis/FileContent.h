// The bytes of a file, in the form in which MSXML takes them.
#pragma once

#include <comutil.h>
#include <windows.h>

#include <string>

namespace lejis_client {

// A one-dimensional array of bytes; raises a FileError. A document loaded from bytes instead of a name can be any file:
// to MSXML a name is an address, in which '#' and '%' have a meaning of their own.
_variant_t ReadFileContent(const std::wstring& path);

}  // namespace lejis_client
