#include "text/WindowsText.h"

#include <cwchar>

namespace lejis_client {

std::wstring SystemMessage(DWORD error) {
    constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    std::wstring text(1024, L'\0');
    text.resize(FormatMessageW(kFlags, nullptr, error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr));
    text.erase(text.find_last_not_of(L" .\r\n") + 1);
    return text.empty() ? L"no further description" : text;
}

std::wstring Hexadecimal(HRESULT number) {
    wchar_t text[11];
    std::swprintf(text, std::size(text), L"0x%08lX", static_cast<unsigned long>(number));
    return text;
}

}  // namespace lejis_client
