#include "files/Quoted.h"

namespace lejis_client {
namespace {

constexpr std::size_t kLongestQuote = 60;

}  // namespace

std::wstring Quoted(std::wstring_view value) {
    std::wstring text(value.substr(0, kLongestQuote));
    for (wchar_t& character : text) {
        if (character == L'\t' || character == L'\r' || character == L'\n') character = L' ';
    }
    return L"'" + text + (value.size() > kLongestQuote ? L"\u2026'" : L"'");
}

}  // namespace lejis_client
