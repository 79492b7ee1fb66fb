#pragma once

#include "platform/OutText.h"

#include <optional>
#include <string_view>

namespace msxml {

// What MSXML makes of the markup of a text: the text of an element that holds nothing else. Nothing where it cannot say.
std::optional<platform::OutText> LoneText(std::wstring_view markup);

}  // namespace msxml
