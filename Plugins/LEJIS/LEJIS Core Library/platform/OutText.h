#pragma once

#include <oleauto.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <utility>

namespace platform {

// A text that a call into the platform gives as an [out] argument, owned and read where it lies.
class OutText {
public:
    OutText() = default;
    OutText(OutText&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    OutText(const OutText&) = delete;
    OutText& operator=(const OutText&) = delete;
    ~OutText() { SysFreeString(text_); }

    // For one call.
    BSTR* Receive() { return &text_; }

    // A null text is no text.
    std::wstring_view View() const& {
        if (!text_) return {};
        // A BSTR's length in bytes stands before it; SysStringLen would be a call for each of a hundred thousand texts.
        return {text_, reinterpret_cast<const DWORD*>(text_)[-1] / sizeof(wchar_t)};
    }

    // Not of a temporary text, whose characters would end before the view.
    std::wstring_view View() const&& = delete;

    operator std::wstring_view() const& { return View(); }
    operator std::wstring_view() const&& = delete;
    friend bool operator==(const OutText& one, std::wstring_view other) { return one.View() == other; }
    friend bool operator==(const OutText& one, const OutText& other) { return one.View() == other.View(); }

private:
    BSTR text_ = nullptr;
};

}  // namespace platform
