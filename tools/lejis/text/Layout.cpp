#include "text/Layout.h"

#include "text/Printable.h"

namespace lejis_client {
namespace {

constexpr std::wstring_view kIndent = L"  ";
constexpr std::wstring_view kBelowBullet = L"    ";

std::wstring Blanks(std::size_t used, std::size_t width) { return std::wstring(width > used ? width - used : 0, L' '); }

}  // namespace

std::wstring ListItem(wchar_t bullet, std::wstring_view text) {
    std::wstring item = std::wstring(kIndent) + bullet + L' ';
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find_first_of(L"\r\n", start);
        item += Printable(std::wstring(text.substr(start, end - start)));
        item += L'\n';
        if (end == std::wstring_view::npos) return item;
        start = text.substr(end, 2) == L"\r\n" ? end + 2 : end + 1;
        if (start < text.size() && text[start] != L'\r' && text[start] != L'\n') item += kBelowBullet;
    }
}

std::wstring Counted(std::size_t count, std::wstring_view noun) {
    return std::to_wstring(count) + L' ' + std::wstring(noun) + (count == 1 ? L"" : L"s");
}

std::wstring Enumerated(const std::vector<std::wstring_view>& words) {
    std::wstring text;
    for (std::size_t place = 0; place < words.size(); ++place) {
        if (place > 0) text += place + 1 == words.size() ? L" and " : L", ";
        text += words[place];
    }
    return text;
}

std::wstring PaddedRight(std::wstring_view text, std::size_t width) {
    return std::wstring(text) + Blanks(text.size(), width);
}

std::wstring PaddedLeft(std::wstring_view text, std::size_t width) {
    return Blanks(text.size(), width) + std::wstring(text);
}

}  // namespace lejis_client
