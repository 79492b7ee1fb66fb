// What the file of a library says of itself, of either bitness.
#pragma once

#include "library/InstalledLibrary.h"

namespace lejis_client {

bool FileExists(const std::wstring& file);

// Nothing when the file is no program of one of these bitnesses.
std::optional<Bitness> BitnessOf(const std::wstring& file);

// The public version; nothing when there is no such file, or none with a version.
std::optional<std::wstring> VersionOf(const std::wstring& file);

// The LEJIS host that the library was made for; nothing when its file does not name one.
std::optional<std::wstring> LejisHostOf(const std::wstring& file);

}  // namespace lejis_client
