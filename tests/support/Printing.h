// Texts in GoogleTest's messages.
#pragma once

#include <comutil.h>

#include <iosfwd>
#include <string>

namespace support {

std::string Utf8(const std::wstring& text);
std::wstring Wide(const std::string& text);

// 0x800401E4, the form in which error numbers are known.
std::string Hexadecimal(long number);

}  // namespace support

// Without this, GoogleTest converts a variant to a number to print it, and a variant that is not a number throws.
void PrintTo(const _variant_t& value, std::ostream* out);
