#include "platform/msxml/ElementText.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

namespace platform::msxml {

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
    // The value of a text node is a text.
    VARIANT value;
    Check(firstChild->get_nodeValue(&value));
    platform::OutText text;
    *text.Receive() = V_BSTR(&value);
    return IsTheSameInAnElement(text) ? std::move(text) : Text(element);
}

std::optional<platform::OutText> LoneText(std::wstring_view markup) {
    try {
        const Document document = CreateDocument();
        if (!LoadXml(document, platform::Join({L"<a>", markup, L"</a>"}))) return std::nullopt;
        return Text(Root(document));
    } catch (const platform::ComError&) {
        return std::nullopt;
    }
}

}  // namespace platform::msxml
