// File names as they are given on the command line.
#pragma once

#include <string>
#include <vector>

namespace lejis_client {

bool HasWildcard(const std::wstring& path);

// The files that a name or a pattern stands for, in alphabetical order. A pattern without a match stands for itself.
// With `recurse` a pattern is looked for in the folders below too, and a folder stands for the pattern *.xml in it.
// Raises a FileError where a folder cannot be read to its end: a shortened list would pass for a whole one.
std::vector<std::wstring> ExpandPattern(const std::wstring& pattern, bool recurse);

}  // namespace lejis_client
