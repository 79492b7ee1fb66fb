#include "files/ValueFault.h"

#include "platform/ComError.h"
#include "platform/Conversions.h"

#include <cmath>

namespace lejis_client {
namespace {

using Fault = std::optional<ValueFault>;

ValueFault NotRead(const wchar_t* reason) { return {std::wstring(L" is not read: it is ") + reason + L"."}; }
ValueFault Fatal(const wchar_t* reason) { return {std::wstring(L" cannot be read: it is ") + reason + L".", true}; }

// A number of which the library keeps another.
Fault ReadAs(double number, long kept) {
    if (std::fabs(number - static_cast<double>(kept)) == 0) return std::nullopt;
    return ValueFault{L" is read as " + std::to_wstring(kept) + L"."};
}

Fault DateFault(std::wstring_view value) {
    if (value.empty() || platform::ParseDate(value)) return std::nullopt;
    return NotRead(L"not a date");
}

Fault BirthDateFault(std::wstring_view value) {
    if (platform::ParseDate(value)) return std::nullopt;
    return Fatal(value.empty() ? L"empty, and not left out" : L"not a date");
}

Fault FlagFault(std::wstring_view value) {
    if (value.empty() || platform::ParseBoolean(value)) return std::nullopt;
    return NotRead(L"neither true nor false");
}

Fault MeasureFault(std::wstring_view value) {
    const auto number = platform::ParseNumber(value);
    if (!number) return value.empty() ? Fault() : NotRead(L"not a number");
    // A holder keeps a number that is out of its range as 0.
    return ReadAs(*number, platform::RoundTo<short>(_variant_t(*number)).value_or(0));
}

Fault YearFault(std::wstring_view value) {
    if (value.empty()) return std::nullopt;
    const auto year = platform::ParseShort(value);
    if (!year) return NotRead(L"not a year");
    return ReadAs(platform::ParseNumber(value).value_or(*year), *year);
}

Fault StreetNumberFault(std::wstring_view value) {
    const auto number = platform::ParseNumber(value);
    if (!number) return value.empty() ? Fault() : NotRead(L"not a number");
    try {
        return ReadAs(*number, platform::ParseLong(value));
    } catch (const platform::ComError&) {
        return Fatal(L"too large a number");
    }
}

Fault AnythingIsFault(std::wstring_view value) {
    if (value.empty()) return std::nullopt;
    return ValueFault{L" is not read: this element is always empty."};
}

}  // namespace

std::optional<ValueFault> FaultOf(Content content, std::wstring_view value) {
    switch (content) {
        case Content::kDate:
            return DateFault(value);
        case Content::kBirthDate:
            return BirthDateFault(value);
        case Content::kFlag:
            return FlagFault(value);
        case Content::kMeasure:
            return MeasureFault(value);
        case Content::kYear:
            return YearFault(value);
        case Content::kStreetNumber:
            return StreetNumberFault(value);
        case Content::kNothing:
            return AnythingIsFault(value);
        default:
            return std::nullopt;
    }
}

}  // namespace lejis_client
