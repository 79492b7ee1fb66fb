#include "platform/InText.h"

#include "platform/Text.h"

#include <algorithm>

namespace platform {

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
