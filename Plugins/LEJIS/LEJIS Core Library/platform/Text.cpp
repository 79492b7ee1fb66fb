#include "platform/Text.h"

#include <oleauto.h>

#include <algorithm>
#include <memory>
#include <new>

namespace platform {

std::wstring CopyText(BSTR text) { return text ? std::wstring(text, SysStringLen(text)) : std::wstring(); }

std::wstring TakeText(BSTR text) {
    const std::unique_ptr<OLECHAR, void (*)(BSTR)> owner(text, [](BSTR owned) { SysFreeString(owned); });
    return CopyText(text);
}

_bstr_t ToBstr(std::wstring_view text) {
    const BSTR copy = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!copy) throw std::bad_alloc();
    return _bstr_t(copy, false);
}

std::wstring_view TrimBlanks(std::wstring_view text) {
    const size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

bool IsBlank(const TextArgument& text) { return TrimBlanks(text.View()).empty(); }

std::wstring Join(std::initializer_list<TextArgument> parts) {
    size_t length = 0;
    for (const TextArgument& part : parts) length += part.View().size();
    std::wstring text;
    text.reserve(length);
    for (const TextArgument& part : parts) text += part.View();
    return text;
}

std::wstring FromUtf8(std::string_view bytes) {
    // A byte is never more than one UTF-16 unit.
    std::wstring text(bytes.size(), L'\0');
    const int size = static_cast<int>(bytes.size());
    text.resize(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), size)));
    return text;
}

bool IsWhiteSpace(wchar_t character) {
    return character == L' ' || character == L'\t' || character == L'\r' || character == L'\n';
}

bool EqualIgnoringCase(std::wstring_view one, std::wstring_view other) {
    return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(), static_cast<int>(other.size()),
                                TRUE) == CSTR_EQUAL;
}

std::wstring ProperCase(std::wstring text) {
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    bool wordBegins = true;
    for (wchar_t& character : text) {
        if (wordBegins) CharUpperBuffW(&character, 1);
        wordBegins = IsWhiteSpace(character);
    }
    return text;
}

InText::InText(std::wstring_view text) : text_(short_.characters) {
    if (text.size() > kShort) {
        long_ = ToBstr(text);
        text_ = long_;
        return;
    }
    short_.bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    *std::ranges::copy(text, short_.characters).out = L'\0';
}

}  // namespace platform
