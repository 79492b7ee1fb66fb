#include "submission/Ledger.h"

#include "files/FileError.h"
#include "text/WindowsText.h"

#include <filesystem>
#include <fstream>

namespace lejis_client {
namespace {

[[noreturn]] void Throw(const std::wstring& path, const std::wstring& what) {
    const DWORD error = GetLastError();
    if (error == ERROR_SHARING_VIOLATION) throw FileError{L"The ledger " + path + L" is in use by another run."};
    throw FileError{L"The ledger " + path + L" cannot be " + what + L": " + SystemMessage(error) + L"."};
}

bool EndsInMidLine(HANDLE file) {
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx(file, &size) || size.QuadPart == 0) return false;
    const LARGE_INTEGER last = {.QuadPart = size.QuadPart - 1};
    char character = '\n';
    DWORD read = 0;
    return SetFilePointerEx(file, last, nullptr, FILE_BEGIN) && ReadFile(file, &character, 1, &read, nullptr) &&
           character != '\n';
}

}  // namespace

Ledger::Ledger(const std::wstring& path)
    : path_(path),
      file_(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                        FILE_ATTRIBUTE_NORMAL, nullptr)) {
    if (file_ == INVALID_HANDLE_VALUE) Throw(path, L"opened");
    try {
        if (EndsInMidLine(file_)) Write("\n");
    } catch (...) {
        CloseHandle(file_);
        throw;
    }
}

Ledger::~Ledger() { CloseHandle(file_); }

void Ledger::Append(const LedgerEntry& entry) { Write(LineOf(entry)); }

void Ledger::Write(const std::string& line) {
    const auto size = static_cast<DWORD>(line.size());
    DWORD written = 0;
    const bool done = SetFilePointerEx(file_, {}, nullptr, FILE_END) &&
                      WriteFile(file_, line.data(), size, &written, nullptr) && written == size &&
                      FlushFileBuffers(file_);
    if (!done) Throw(path_, L"written");
}

std::size_t ReadLedger(const std::wstring& path, const std::function<void(const LedgerEntry&)>& take) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    if (!file) throw FileError{L"The ledger " + path + L" cannot be read."};
    std::size_t unreadable = 0;
    for (std::string line; std::getline(file, line);) {
        if (const auto entry = ParseLedgerLine(line)) {
            take(*entry);
        } else if (!line.empty()) {
            ++unreadable;
        }
    }
    return unreadable;
}

}  // namespace lejis_client
