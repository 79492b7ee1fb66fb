// What the platform costs without the library.
#pragma once

#include <string>

namespace endurance {

// Posts a text through MSXML, as the library does, and reads the answer. Failures are ignored.
void PostBare(const std::wstring& url, const std::wstring& body);

}  // namespace endurance
