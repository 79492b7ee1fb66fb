// How texts are laid out for people.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lejis_client {

// The text as an item of a list; its later lines stand below its first one. Of its control characters only the line
// breaks are kept.
std::wstring ListItem(wchar_t bullet, std::wstring_view text);

// "1 error", "3 errors".
std::wstring Counted(std::size_t count, std::wstring_view noun);

// "red, green and blue".
std::wstring Enumerated(const std::vector<std::wstring_view>& words);

std::wstring PaddedRight(std::wstring_view text, std::size_t width);
std::wstring PaddedLeft(std::wstring_view text, std::size_t width);

}  // namespace lejis_client
