#pragma once

#include "platform/msxml/MsXml.h"
#include "platform/OutText.h"

#include <optional>
#include <string_view>

namespace msxml {

// The text of an element that holds nothing but a text or nothing at all, as Text gives it and in a third of its time;
// none for an element that holds more.
std::optional<platform::OutText> LeafText(const Node& element, const Node& firstChild);

// Whether MSXML gives this text of an element as it stands. It may trim a text and change white space inside it.
bool IsTheSameInAnElement(std::wstring_view text);

}  // namespace msxml
