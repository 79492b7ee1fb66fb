// The files that a command line names: by name, by pattern, by folder, or in a list of all these.
#pragma once

#include <string>
#include <vector>

namespace lejis_client {

inline constexpr wchar_t kStandardInput[] = L"-";

struct NamedFile {
    // The name that the user knows.
    std::wstring name;
    // Whole, but for that of standard input.
    std::wstring path;
};

// In the order of the arguments, those of a pattern or folder in alphabetical order; a file that is named twice stands
// where it was named first. A pattern without a match stays as it is, so that it is reported in its place. With
// `recurse` patterns look into the folders below too, and a folder stands for all its files *.xml. Raises a FileError
// when a list or a folder cannot be read.
std::vector<NamedFile> ListFiles(const std::vector<std::wstring>& arguments, bool recurse);

}  // namespace lejis_client
