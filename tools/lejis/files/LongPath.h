#pragma once

#include <string>

namespace lejis_client {

// The absolute path; it begins with the drive or the server.
std::wstring WholePath(const std::wstring& path);

// The name by which Windows opens a file or folder. Names of 260 characters and more need the prefix \\?\ for that.
std::wstring LongPath(const std::wstring& path);

}  // namespace lejis_client
