#include "files/FilePattern.h"

#include "files/FileError.h"
#include "files/LongPath.h"
#include "files/UnixPattern.h"
#include "files/Wildcard.h"
#include "text/WindowsText.h"

#include <windows.h>

#include <algorithm>
#include <memory>

namespace lejis_client {
namespace {

constexpr wchar_t kIncidentFiles[] = L"*.xml";

std::size_t LengthOfFolder(const std::wstring& pattern) { return pattern.find_last_of(L"\\/:") + 1; }

[[noreturn]] void ThrowUnreadable(const std::wstring& folder, DWORD error) {
    throw FileError{L"The folder " + (folder.empty() ? L"." : folder) + L" cannot be read: " + SystemMessage(error) +
                    L"."};
}

struct SearchCloser {
    using pointer = HANDLE;
    void operator()(HANDLE search) const { FindClose(search); }
};
using Search = std::unique_ptr<HANDLE, SearchCloser>;

// Whether the error means that nothing matches. A folder that the search itself found exists, so only a path from the
// user may be missing or invalid.
bool MeansNoMatch(DWORD error, bool isFound) {
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_NO_MORE_FILES) return true;
    return !isFound && (error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME || error == ERROR_DIRECTORY ||
                        error == ERROR_BAD_PATHNAME);
}

enum class Kind { kFiles, kFolders };

bool IsWanted(const WIN32_FIND_DATAW& entry, Kind kind, const std::wstring& pattern) {
    const std::wstring name = entry.cFileName;
    // A link to a folder may lead back to one above it.
    const bool isLink = entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT;
    const bool isFolder = entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    if (isFolder != (kind == Kind::kFolders) || (isFolder && (isLink || name == L"." || name == L".."))) return false;
    // The system also finds an entry by its short name, such as A~1.XML for a.xml_old.
    return MatchesWildcard(name, pattern);
}

// The names in a folder, with it before them. `isFound` says that the folder was found, not given by the user.
std::vector<std::wstring> Entries(const std::wstring& folder, const std::wstring& pattern, Kind kind, bool isFound) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW entry;
    const Search search(FindFirstFileW(LongPath(WindowsPattern(folder + pattern)).c_str(), &entry));
    if (search.get() == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        if (!MeansNoMatch(error, isFound)) ThrowUnreadable(folder, error);
        return names;
    }
    do {
        if (IsWanted(entry, kind, pattern)) names.push_back(folder + entry.cFileName);
    } while (FindNextFileW(search.get(), &entry));
    if (GetLastError() != ERROR_NO_MORE_FILES) ThrowUnreadable(folder, GetLastError());
    std::sort(names.begin(), names.end());
    return names;
}

void AddMatches(const std::wstring& folder, const std::wstring& pattern, bool recurse, bool isFound,
                std::vector<std::wstring>& files) {
    const auto own = Entries(folder, pattern, Kind::kFiles, isFound);
    files.insert(files.end(), own.begin(), own.end());
    if (!recurse) return;
    for (const std::wstring& below : Entries(folder, L"*", Kind::kFolders, isFound)) {
        AddMatches(below + L'\\', pattern, recurse, true, files);
    }
}

bool IsFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(LongPath(path).c_str());
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
    const bool isFolder = recurse && !HasWildcard(pattern) && IsFolder(pattern);
    const std::wstring wanted = isFolder ? AsFolder(pattern) + kIncidentFiles : pattern;
    if (!HasWildcard(wanted)) return {wanted};
    std::vector<std::wstring> files;
    const std::size_t length = LengthOfFolder(wanted);
    AddMatches(wanted.substr(0, length), wanted.substr(length), recurse, isFolder, files);
    if (files.empty()) files.push_back(wanted);
    return files;
}

}  // namespace lejis_client
