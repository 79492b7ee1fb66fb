#include "files/FileContent.h"

#include "files/FileError.h"
#include "files/FilePattern.h"
#include "files/LongPath.h"
#include "text/WindowsText.h"

#include <windows.h>

#include <memory>

namespace lejis_client {
namespace {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using FileHandle = std::unique_ptr<HANDLE, HandleCloser>;

struct Reason {
    DWORD error;
    const wchar_t* words;
};

constexpr Reason kReasons[] = {
    {ERROR_FILE_NOT_FOUND, L"There is no such file."},
    {ERROR_PATH_NOT_FOUND, L"There is no such folder."},
    {ERROR_INVALID_NAME, L"This is no valid file name."},
    {ERROR_ACCESS_DENIED, L"Access to the file is denied."},
    {ERROR_SHARING_VIOLATION, L"Another program keeps the file to itself."},
};

[[noreturn]] void ThrowReason(DWORD error) {
    for (const Reason& reason : kReasons) {
        if (reason.error == error) throw FileError{reason.words};
    }
    throw FileError{L"The file cannot be read: " + SystemMessage(error) + L"."};
}

FileHandle Open(const std::wstring& name) {
    if (HasWildcard(name)) throw FileError{L"No file matches this pattern."};
    const std::wstring path = LongPath(name);
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) ThrowReason(GetLastError());
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        throw FileError{L"This is a folder, not a file; --recurse takes the files in it."};
    constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, kSharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) ThrowReason(GetLastError());
    return FileHandle(file);
}

ULONG SizeOf(HANDLE file) {
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file, &size)) ThrowReason(GetLastError());
    if (size.QuadPart == 0) throw FileError{L"The file is empty."};
    if (size.QuadPart > static_cast<LONGLONG>(kLargestFile)) throw FileError{L"The file is too large for an incident."};
    return static_cast<ULONG>(size.QuadPart);
}

}  // namespace

std::string ReadFileContent(const std::wstring& path) {
    const FileHandle file = Open(path);
    std::string content(SizeOf(file.get()), '\0');
    DWORD read = 0;
    if (!ReadFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &read, nullptr)) {
        ThrowReason(GetLastError());
    }
    if (read != content.size()) throw FileError{L"The file changed while it was read."};
    return content;
}

}  // namespace lejis_client
