// Dates of the platform and their texts.
#pragma once

#include <windows.h>
#include <wtypes.h>

#include <optional>
#include <string_view>

namespace platform {

// The date of a text exactly of the form "2007-03-08" or "2007-03-08 23:15:00", from the year 1900 on: what XML
// carries, and what reads alike under every regional setting. Nothing for any other text, even if it is a date.
std::optional<DATE> ParseIsoDate(std::wstring_view text);

// Calendar date and time of day, rounded to the second. Throws when the date is out of the platform's range.
SYSTEMTIME CalendarTime(DATE date);

// The current local date and time.
DATE Now();

}  // namespace platform
