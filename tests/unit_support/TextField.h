// A text of a card as a place to write to and to read from, for loops over many of them.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace support {

struct TextField {
    std::function<void(std::wstring_view)> Set;
    std::function<std::wstring()> Get;
};

}  // namespace support

#define TEXT_FIELD(card, Name)                                                      \
    support::TextField {                                                            \
        [holder = card](std::wstring_view newText) { holder->Set##Name(newText); }, \
            [holder = card] { return std::wstring(holder->Name()); }                \
    }
