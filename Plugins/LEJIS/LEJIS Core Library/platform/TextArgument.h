#pragma once

#include <string>
#include <string_view>

namespace platform {

// A text that a function takes for the length of the call, whatever type the caller has it in. A field of a card
// converts to this and not to a view, which would end when another field of the card is set.
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
