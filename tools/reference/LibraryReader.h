// Reads a type library.
#pragma once

#include "Library.h"

namespace reference {

// Throws std::runtime_error when `path` holds no type library.
Library ReadLibrary(const std::wstring& path);

}  // namespace reference
