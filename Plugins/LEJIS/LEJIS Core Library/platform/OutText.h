#pragma once

#include <oleauto.h>
#include <windows.h>

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
    std::wstring_view View() const { return {text_, SysStringLen(text_)}; }

private:
    BSTR text_ = nullptr;
};

}  // namespace platform
