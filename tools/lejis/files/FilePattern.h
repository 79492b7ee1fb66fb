// File names as they are given on the command line.
#pragma once

#include <string>
#include <vector>

namespace lejis_client {

bool HasWildcard(const std::wstring& path);

// The files that the names and patterns stand for, those of a pattern in alphabetical order. A pattern without a match
// stays as it is, so that it is reported in its place.
std::vector<std::wstring> ExpandPatterns(const std::vector<std::wstring>& patterns);

}  // namespace lejis_client
