#pragma once

#include <string>

namespace lejis_client {

// Far above any incident, far below what would exhaust a 32-bit program.
inline constexpr std::size_t kLargestFile = 64 * 1024 * 1024;

// The bytes of a file; raises a FileError. Any file can be loaded from its bytes, but not by its name: to MSXML that is
// an address, in which '#' and '%' have a meaning of their own.
std::string ReadFileContent(const std::wstring& path);

}  // namespace lejis_client
