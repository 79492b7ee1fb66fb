#pragma once

#include <comutil.h>
#include <windows.h>

#include <optional>
#include <string>

namespace platform {

// Whether the value is a reference to nothing.
bool RefersToNothing(const VARIANT& value);

// The value that a reference refers to, or the value itself: scripts pass a variable by reference. Throws the type
// mismatch for a reference to nothing.
_variant_t Dereference(const VARIANT& value);

// Automation's Null.
_variant_t Null();

// The name that automation clients know the value's type by: String, Integer, Null, ...; an object gives its class.
std::wstring TypeName(const VARIANT& value);

// The value as text; Null gives an empty text and a Boolean True or False. Throws when the value has no form as text.
std::wstring ToText(const VARIANT& value);

// A text read as a value; nothing for a text that is not such a value. Dates include times and date-times; Booleans are
// true, false and numbers.
std::optional<DATE> ParseDate(std::wstring_view text);
std::optional<double> ParseNumber(std::wstring_view text);
std::optional<bool> ParseBoolean(std::wstring_view text);

// The number that a text begins with after white space; 0 for a text that begins with no number. The decimal point is
// "." whatever the regional settings. Any other character ends the number, white space included. Throws the overflow
// error.
double LeadingDecimal(std::wstring_view text);

// The same with an exponent: "1e2" is 100 here and 1 there.
double LeadingNumber(std::wstring_view text);

// A numeric text as an integer, halves to the even neighbour. Throws the overflow error out of range.
long ParseLong(std::wstring_view text);

// The same for 16 bits; nothing when the text is not a number or out of range.
std::optional<short> ParseShort(std::wstring_view text);

// A number rounded, halves to the even neighbour; nothing when it is out of range or not a number at all.
template <typename Integer>
std::optional<Integer> RoundTo(const VARIANT& number);
template <>
std::optional<short> RoundTo<short>(const VARIANT& number);
template <>
std::optional<long> RoundTo<long>(const VARIANT& number);

}  // namespace platform
