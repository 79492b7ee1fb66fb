#include "platform/msxml/LeafText.h"

#include "platform/ComError.h"
#include "platform/msxml/Node.h"
#include "platform/OutText.h"

using platform::Check;

namespace msxml {

bool IsTheSameInAnElement(std::wstring_view text) {
    bool blankBefore = true;
    for (const wchar_t character : text) {
        if (character < L' ' || (character == L' ' && blankBefore)) return false;
        blankBefore = character == L' ';
    }
    return !blankBefore;
}

std::optional<platform::OutText> LeafText(const Node& element, const Node& firstChild) {
    if (!firstChild) return platform::OutText();
    if (TypeOf(firstChild) != NODE_TEXT || NextSibling(firstChild)) return std::nullopt;
    // The value of a text is a text.
    VARIANT value;
    Check(firstChild->get_nodeValue(&value));
    platform::OutText text;
    *text.Receive() = V_BSTR(&value);
    return IsTheSameInAnElement(text) ? std::move(text) : Text(element);
}

}  // namespace msxml
