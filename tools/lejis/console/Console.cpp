#include "console/Console.h"

#include "text/Utf8.h"

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

// The custom of https://no-color.org: set, to anything but an empty text.
bool ColourIsUnwanted() { return GetEnvironmentVariableW(L"NO_COLOR", nullptr, 0) > 1; }

WORD ColourOf(Tone tone) {
    switch (tone) {
        case Tone::kGood:
            return FOREGROUND_GREEN | FOREGROUND_INTENSITY;
        case Tone::kBad:
            return FOREGROUND_RED | FOREGROUND_INTENSITY;
        case Tone::kDoubtful:
            return FOREGROUND_RED | FOREGROUND_GREEN | FOREGROUND_INTENSITY;
        case Tone::kPlain:
            break;
    }
    return FOREGROUND_RED | FOREGROUND_GREEN | FOREGROUND_BLUE;
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

Console::Console(DWORD standardHandle) : handle_(GetStdHandle(standardHandle)), interactive_(false), coloured_(false) {
    DWORD mode = 0;
    interactive_ = GetConsoleMode(handle_, &mode) != FALSE;
    coloured_ = interactive_ && !ColourIsUnwanted();
}

void Console::Write(std::wstring_view text) const { WriteAsItIs(WithCarriageReturns(text)); }

void Console::WriteAsItIs(std::wstring_view text) const {
    if (interactive_) {
        WriteToConsole(handle_, text);
    } else {
        WriteToFile(handle_, Utf8(text));
    }
}

void Console::Write(std::wstring_view text, Tone tone) const {
    CONSOLE_SCREEN_BUFFER_INFO before = {};
    if (!coloured_ || tone == Tone::kPlain || !GetConsoleScreenBufferInfo(handle_, &before)) return Write(text);
    constexpr WORD kForeground = FOREGROUND_RED | FOREGROUND_GREEN | FOREGROUND_BLUE | FOREGROUND_INTENSITY;
    SetConsoleTextAttribute(handle_, static_cast<WORD>((before.wAttributes & ~kForeground) | ColourOf(tone)));
    Write(text);
    SetConsoleTextAttribute(handle_, before.wAttributes);
}

}  // namespace lejis_client
