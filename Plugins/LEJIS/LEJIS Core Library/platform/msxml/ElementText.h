// The texts of elements as MSXML gives them.
#pragma once

#include "platform/msxml/MsXml.h"
#include "platform/Text.h"

#include <optional>
#include <string_view>

namespace platform::msxml {

// The text of an element that holds one text node or nothing at all, as Text gives it and in a third of its time;
// nothing for an element that holds more.
std::optional<platform::OutText> LeafText(const Node& element, const Node& firstChild);

// Whether MSXML gives this text of an element as it stands. It may trim a text and change white space inside it.
bool IsTheSameInAnElement(std::wstring_view text);

// The text that MSXML gives of an element with this markup alone in it; nothing for a markup that MSXML does not parse.
std::optional<platform::OutText> LoneText(std::wstring_view markup);

}  // namespace platform::msxml
