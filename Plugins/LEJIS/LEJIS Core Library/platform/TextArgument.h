#pragma once

#include <string>
#include <string_view>

namespace platform {

// A text that a function takes for the length of the call, whatever the caller has it in. A field of a card turns into
// this and into no view, which would end where another field of the card is set.
class TextArgument {
public:
    TextArgument(std::wstring_view text) : text_(text) {}
    TextArgument(const std::wstring& text) : text_(text) {}
    TextArgument(const wchar_t* text) : text_(text) {}
    TextArgument(const TextArgument&) = delete;
    TextArgument& operator=(const TextArgument&) = delete;

    std::wstring_view View() const { return text_; }

private:
    const std::wstring_view text_;
};

}  // namespace platform
