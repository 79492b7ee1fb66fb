#pragma once

#include "platform/msxml/MsXml.h"
#include "platform/OutText.h"

#include <optional>

namespace msxml {

// The text of an element that holds nothing but a text or nothing at all, as Text gives it and in a third of its time;
// none for an element that holds more.
std::optional<platform::OutText> LeafText(const Node& element, const Node& firstChild);

}  // namespace msxml
