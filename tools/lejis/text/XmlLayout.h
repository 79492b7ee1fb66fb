// How XML is laid out for people.
#pragma once

#include <string>
#include <string_view>

namespace lejis_client {

// The markup of a document of elements and texts, as MSXML writes it on one line, with a line for each element. Texts
// stay as they are.
std::wstring Indented(std::wstring_view markup);

}  // namespace lejis_client
