// Texts in GoogleTest's messages.
#pragma once

#include <string>

namespace support {

std::string Utf8(const std::wstring& text);
std::wstring Wide(const std::string& text);

// 0x800401E4, the form in which error numbers are known.
std::string Hexadecimal(long number);

}  // namespace support
