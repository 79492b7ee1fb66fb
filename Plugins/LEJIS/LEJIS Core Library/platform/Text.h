// Texts between the platform's BSTR and std::wstring, and the few changes of text that the library makes.
#pragma once

#include "platform/TextArgument.h"

#include <comutil.h>
#include <windows.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace platform {

// Takes over `text`, which may be null: no text.
std::wstring TakeText(BSTR text);

// A copy of `text`, which stays the caller's and may be null: no text.
std::wstring CopyText(BSTR text);

// All of `text`, null characters included. Raises when memory is short.
_bstr_t ToBstr(std::wstring_view text);

// `text` without the blanks at its ends; other white space stays.
std::wstring_view TrimBlanks(std::wstring_view text);

// Whether there is nothing but blanks in the text.
bool IsBlank(const TextArgument& text);

// The parts, one behind the other.
std::wstring Join(std::initializer_list<TextArgument> parts);

// Bytes that are no UTF-8 become U+FFFD.
std::wstring FromUtf8(std::string_view bytes);

// A blank, a tab or a character of a line end.
bool IsWhiteSpace(wchar_t character);

bool EqualIgnoringCase(std::wstring_view one, std::wstring_view other);

// Each word with its first letter in upper case and the others in lower case. Blanks, tabs and line ends separate
// words, and no other white space does.
std::wstring ProperCase(std::wstring text);

}  // namespace platform
