// The user's setting DebugLejis, as it is written.
#pragma once

#include <string>

namespace lejis_client {

// A text in quotes or a number; empty when there is no such setting.
std::wstring DebugFlagAsWritten();

// Whether somebody who wrote this will have meant "on".
bool LooksOn(const std::wstring& written);

}  // namespace lejis_client
