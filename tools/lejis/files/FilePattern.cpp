#include "files/FilePattern.h"

#include "files/UnixPattern.h"

#include <windows.h>

#include <algorithm>

namespace lejis_client {
namespace {

constexpr wchar_t kIncidentFiles[] = L"*.xml";

std::size_t LengthOfFolder(const std::wstring& pattern) { return pattern.find_last_of(L"\\/:") + 1; }

// The names in a folder, with it before them; those of folders or those of files.
std::vector<std::wstring> Entries(const std::wstring& pattern, bool folders) {
    const std::wstring folder = pattern.substr(0, LengthOfFolder(pattern));
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(WindowsPattern(pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        const std::wstring name = found.cFileName;
        // A link to a folder may lead back to one above it.
        const bool isLink = found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT;
        const bool isFolder = found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
        if (isFolder != folders || (isFolder && (isLink || name == L"." || name == L".."))) continue;
        names.push_back(folder + name);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

void AddMatches(const std::wstring& folder, const std::wstring& pattern, bool recurse,
                std::vector<std::wstring>& files) {
    const auto own = Entries(folder + pattern, false);
    files.insert(files.end(), own.begin(), own.end());
    if (!recurse) return;
    for (const std::wstring& below : Entries(folder + L"*", true)) AddMatches(below + L'\\', pattern, recurse, files);
}

bool IsFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::wstring AsFolder(const std::wstring& path) {
    return path.ends_with(L'\\') || path.ends_with(L'/') ? path : path + L'\\';
}

}  // namespace

bool HasWildcard(const std::wstring& path) {
    // The prefix \\?\ of long names is no pattern.
    const std::size_t start = path.starts_with(L"\\\\?\\") ? 4 : 0;
    return path.find_first_of(L"*?", start) != std::wstring::npos;
}

std::vector<std::wstring> ExpandPattern(const std::wstring& pattern, bool recurse) {
    std::vector<std::wstring> files;
    if (HasWildcard(pattern)) {
        const std::size_t length = LengthOfFolder(pattern);
        AddMatches(pattern.substr(0, length), pattern.substr(length), recurse, files);
    } else if (recurse && IsFolder(pattern)) {
        AddMatches(AsFolder(pattern), kIncidentFiles, recurse, files);
    }
    if (files.empty()) files.push_back(pattern);
    return files;
}

}  // namespace lejis_client
