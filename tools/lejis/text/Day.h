// Days as the user writes them.
#pragma once

#include <ole2.h>
#include <windows.h>

#include <optional>
#include <string>

namespace lejis_client {

// YYYY-MM-DD and nothing else: the platform's own reading of dates depends on the user's settings.
std::optional<DATE> ParseDay(const std::wstring& text);

}  // namespace lejis_client
