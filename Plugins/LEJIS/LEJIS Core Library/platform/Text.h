// Texts: the library's own, and those that go into the platform and come out of it.
#pragma once

#include "platform/TextArgument.h"

#include <comutil.h>
#include <oleauto.h>
#include <windows.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace platform {

// Takes over `text`. A null text is an empty one.
std::wstring TakeText(BSTR text);

// A copy of `text`, which stays the caller's. A null text is an empty one.
std::wstring CopyText(BSTR text);

// All of `text`, null characters included. Throws when memory is short.
_bstr_t ToBstr(std::wstring_view text);

// `text` without the blanks at its ends; other white space stays.
std::wstring_view TrimBlanks(std::wstring_view text);

// Whether the text is empty or holds blanks alone.
bool IsBlank(const TextArgument& text);

// The parts, one after the other.
std::wstring Join(std::initializer_list<TextArgument> parts);

// Bytes that are not UTF-8 become U+FFFD.
std::wstring FromUtf8(std::string_view bytes);

// A blank, a tab or a character of a line end.
bool IsWhiteSpace(wchar_t character);

bool EqualIgnoringCase(std::wstring_view one, std::wstring_view other);

// Each word with its first letter in upper case and the others in lower case. Blanks, tabs and line ends separate
// words, and no other white space does.
std::wstring ProperCase(std::wstring text);

// A text as an [in] argument of a call into the platform. A short text needs no memory of its own: a BSTR is its length
// in bytes, its characters and a null, and a callee only reads an [in] argument.
class InText {
public:
    // Throws when memory is short.
    explicit InText(std::wstring_view text);
    InText(const InText&) = delete;
    InText& operator=(const InText&) = delete;

    operator BSTR() const { return text_; }

private:
    static constexpr size_t kShort = 125;

    struct {
        DWORD bytes;
        wchar_t characters[kShort + 1];
    } short_;
    _bstr_t long_;
    BSTR text_;
};

// A text that a call into the platform gives as an [out] argument. This owns the text and reads it in place.
class OutText {
public:
    OutText() = default;
    OutText(OutText&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    OutText(const OutText&) = delete;
    OutText& operator=(const OutText&) = delete;
    ~OutText() { SysFreeString(text_); }

    // The place for the [out] argument of one call.
    BSTR* Receive() { return &text_; }

    // A null text is an empty one.
    std::wstring_view View() const& {
        if (!text_) return {};
        // A BSTR's length in bytes stands before it; SysStringLen would be a call for each of a hundred thousand texts.
        return {text_, reinterpret_cast<const DWORD*>(text_)[-1] / sizeof(wchar_t)};
    }

    // A temporary text gives no view: its characters would end before the view.
    std::wstring_view View() const&& = delete;

    operator std::wstring_view() const& { return View(); }
    operator std::wstring_view() const&& = delete;
    friend bool operator==(const OutText& one, std::wstring_view other) { return one.View() == other; }
    friend bool operator==(const OutText& one, const OutText& other) { return one.View() == other.View(); }

private:
    BSTR text_ = nullptr;
};

}  // namespace platform
