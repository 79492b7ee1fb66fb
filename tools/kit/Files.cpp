#include "Files.h"

#include "text/Utf8.h"
#include "text/WindowsText.h"

#include <windows.h>

#include <memory>
#include <stdexcept>

namespace kit {
namespace {

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using File = std::unique_ptr<void, HandleCloser>;

[[noreturn]] void Fail(const std::wstring& path, const wchar_t* what) {
    const std::wstring reason = lejis_client::SystemMessage(GetLastError());
    throw std::runtime_error(lejis_client::Utf8(path + L" " + what + L": " + reason));
}

File Open(const std::wstring& path, DWORD access, DWORD disposition, const wchar_t* failure) {
    const HANDLE file =
        CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) Fail(path, failure);
    return File(file);
}

}  // namespace

std::string ContentOf(const std::wstring& path) {
    const wchar_t* const failure = L"cannot be read";
    const File file = Open(path, GENERIC_READ, OPEN_EXISTING, failure);
    std::string content;
    char piece[65536];
    for (DWORD read = 1; read > 0; content.append(piece, read)) {
        if (!ReadFile(file.get(), piece, sizeof piece, &read, nullptr)) Fail(path, failure);
    }
    return content;
}

void Write(const std::wstring& path, const std::string& content) {
    const wchar_t* const failure = L"cannot be written";
    const File file = Open(path, GENERIC_WRITE, CREATE_ALWAYS, failure);
    DWORD written = 0;
    if (!WriteFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &written, nullptr)) {
        Fail(path, failure);
    }
}

bool Exists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

std::wstring OwnFolder() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

}  // namespace kit
