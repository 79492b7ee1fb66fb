// What a client is told, as one line of text.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace support {

// "success", "transient: <description>", "fatal: <description>" or "error <number>: <description>", of a submission or
// deletion that has just been made on this thread.
std::wstring OutcomeOf(HRESULT result);

// The events of a search, in their order; "no event" for none.
std::wstring OutcomeOf(const std::vector<std::wstring>& events);

// In UTF-8, with backslash sequences for what would break a line or a field.
std::string Escaped(const std::wstring& text);

}  // namespace support
