#include "files/FilePattern.h"

#include "files/UnixPattern.h"

#include <windows.h>

#include <algorithm>

namespace lejis_client {
namespace {

std::vector<std::wstring> Matches(const std::wstring& pattern) {
    const std::wstring folder = pattern.substr(0, pattern.find_last_of(L"\\/:") + 1);
    std::vector<std::wstring> files;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(WindowsPattern(pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return files;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) files.push_back(folder + found.cFileName);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

bool HasWildcard(const std::wstring& path) {
    // The prefix \\?\ of long names is no pattern.
    const std::size_t start = path.starts_with(L"\\\\?\\") ? 4 : 0;
    return path.find_first_of(L"*?", start) != std::wstring::npos;
}

std::vector<std::wstring> ExpandPatterns(const std::vector<std::wstring>& patterns) {
    std::vector<std::wstring> files;
    for (const std::wstring& pattern : patterns) {
        auto matches = HasWildcard(pattern) ? Matches(pattern) : std::vector<std::wstring>();
        if (matches.empty()) matches.push_back(pattern);
        files.insert(files.end(), matches.begin(), matches.end());
    }
    return files;
}

}  // namespace lejis_client
