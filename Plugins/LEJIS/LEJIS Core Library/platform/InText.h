#pragma once

#include <comutil.h>
#include <windows.h>

#include <string_view>

namespace platform {

// A text as an [in] argument of a call into the platform. A short one needs no memory of its own: a BSTR is its length
// in bytes, its characters and a null, and a callee only reads what it gets as [in].
class InText {
public:
    // Raises when memory is short.
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

}  // namespace platform
