#include "Console.h"

#include <algorithm>

namespace lejis_client {
namespace {

std::wstring WithCarriageReturns(std::wstring_view text) {
    std::wstring result;
    for (const wchar_t character : text) {
        if (character == L'\n') result += L'\r';
        result += character;
    }
    return result;
}

std::string Utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

// Older consoles take no more than 64 KB at once.
constexpr std::size_t kConsolePiece = 8192;

void WriteToConsole(HANDLE console, std::wstring_view text) {
    while (!text.empty()) {
        const std::size_t length = std::min(text.size(), kConsolePiece);
        DWORD written = 0;
        if (!WriteConsoleW(console, text.data(), static_cast<DWORD>(length), &written, nullptr) || written == 0) return;
        text.remove_prefix(written);
    }
}

void WriteToFile(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        // A reader that has gone away is no concern of the submissions.
        if (!WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) || written == 0) return;
        bytes.remove_prefix(written);
    }
}

}  // namespace

const Console& Console::Output() {
    static const Console console(STD_OUTPUT_HANDLE);
    return console;
}

const Console& Console::Errors() {
    static const Console console(STD_ERROR_HANDLE);
    return console;
}

Console::Console(DWORD standardHandle) : handle_(GetStdHandle(standardHandle)), interactive_(false) {
    DWORD mode = 0;
    interactive_ = GetConsoleMode(handle_, &mode) != FALSE;
}

void Console::Write(std::wstring_view text) const {
    const std::wstring lines = WithCarriageReturns(text);
    if (interactive_) {
        WriteToConsole(handle_, lines);
    } else {
        WriteToFile(handle_, Utf8(lines));
    }
}

}  // namespace lejis_client
