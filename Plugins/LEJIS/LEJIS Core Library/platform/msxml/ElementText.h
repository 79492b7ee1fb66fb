#pragma once

#include "platform/msxml/MsXml.h"

#include <string>

namespace msxml {

// The text of an element and its descendants, as Text gives it. Faster for an element that holds nothing but a text.
std::wstring ElementText(const Node& element);

}  // namespace msxml
