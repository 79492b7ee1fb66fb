// Reads a type library.
#pragma once

#include "Library.h"

namespace reference {

// Raises std::runtime_error when there is none at `path`.
Library ReadLibrary(const std::wstring& path);

}  // namespace reference
