// The platform's own conversions of values, under the user's regional settings. Nothing else in the library calls them.
#pragma once

#include <comutil.h>
#include <windows.h>

#include <optional>
#include <string>

namespace platform {

// The value behind a reference, or the value itself: what scripts pass as a variable arrives by reference.
_variant_t Dereference(const VARIANT& value);

// Automation's Null.
_variant_t Null();

// The name that automation clients know the value's type by: String, Integer, Null, ...; an object gives its class.
std::wstring TypeName(const VARIANT& value);

// The value as text; Null gives an empty text and a Boolean True or False. Raises when there is no text for it.
std::wstring ToText(const VARIANT& value);

// A text read as a value; nothing when it is none. Dates include times and date-times, Booleans true, false and
// numbers.
std::optional<DATE> ParseDate(std::wstring_view text);
std::optional<double> ParseNumber(std::wstring_view text);
std::optional<bool> ParseBoolean(std::wstring_view text);

// The number that a text begins with behind white space, "." being the decimal point whatever the regional settings; 0
// when it begins with none. Any other character ends it, white space included. Raises the platform's overflow error.
double LeadingDecimal(std::wstring_view text);

// The same with an exponent: "1e2" is 100 here and 1 there.
double LeadingNumber(std::wstring_view text);

// A numeric text as an integer, halves to the even neighbour. Raises the platform's overflow error out of range.
long ParseLong(std::wstring_view text);

// The same for 16 bits; nothing when the text is no number or out of range.
std::optional<short> ParseShort(std::wstring_view text);

// A number rounded, halves to the even neighbour; nothing when it is out of range or no number at all.
template <typename Integer>
std::optional<Integer> RoundTo(const VARIANT& number);
template <>
std::optional<short> RoundTo<short>(const VARIANT& number);
template <>
std::optional<long> RoundTo<long>(const VARIANT& number);

// Calendar date and time of day, rounded to the second. Raises when the date is out of the platform's range.
SYSTEMTIME CalendarTime(DATE date);

// The current local date and time.
DATE Now();

}  // namespace platform
