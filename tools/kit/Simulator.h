#pragma once

#include <string>

namespace kit {

// Raises a std::runtime_error for an address where no simulator answers, or one that stands before a true LEJIS and
// records it: the tests submit, and empty the index.
void RequireSimulator(const std::wstring& address);

}  // namespace kit
