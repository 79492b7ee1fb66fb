#pragma once

#include <string>

namespace lejis_client {

// A text from elsewhere with blanks for its control characters, so that it neither breaks lines nor talks to the
// terminal.
std::wstring Printable(std::wstring text);

}  // namespace lejis_client
