#include "platform/Dates.h"

#include "platform/ComError.h"

#include <oleauto.h>

#include <chrono>

namespace platform {
namespace {

constexpr std::wstring_view kDateForm = L"0000-00-00";
constexpr std::wstring_view kDateTimeForm = L"0000-00-00 00:00:00";

bool HasForm(std::wstring_view text, std::wstring_view form) {
    if (text.size() != form.size()) return false;
    for (size_t at = 0; at < form.size(); ++at) {
        const bool isDigit = text[at] >= L'0' && text[at] <= L'9';
        if (form[at] == L'0' ? !isDigit : text[at] != form[at]) return false;
    }
    return true;
}

WORD Digits(std::wstring_view text, size_t at, size_t count) {
    int number = 0;
    for (const wchar_t digit : text.substr(at, count)) number = number * 10 + (digit - L'0');
    return static_cast<WORD>(number);
}

bool Exists(const SYSTEMTIME& time) {
    const std::chrono::year_month_day date{std::chrono::year{time.wYear}, std::chrono::month{time.wMonth},
                                           std::chrono::day{time.wDay}};
    return date.ok() && time.wYear >= 1900 && time.wHour < 24 && time.wMinute < 60 && time.wSecond < 60;
}

}  // namespace

std::optional<DATE> ParseIsoDate(std::wstring_view text) {
    const bool hasTime = HasForm(text, kDateTimeForm);
    if (!hasTime && !HasForm(text, kDateForm)) return std::nullopt;
    SYSTEMTIME time{};
    time.wYear = Digits(text, 0, 4);
    time.wMonth = Digits(text, 5, 2);
    time.wDay = Digits(text, 8, 2);
    if (hasTime) {
        time.wHour = Digits(text, 11, 2);
        time.wMinute = Digits(text, 14, 2);
        time.wSecond = Digits(text, 17, 2);
    }
    DATE date = 0;
    if (!Exists(time) || !SystemTimeToVariantTime(&time, &date)) return std::nullopt;
    return date;
}

SYSTEMTIME CalendarTime(DATE date) {
    SYSTEMTIME time{};
    if (!VariantTimeToSystemTime(date, &time)) throw Overflow();
    return time;
}

DATE Now() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    DATE now = 0;
    SystemTimeToVariantTime(&time, &now);
    return now;
}

}  // namespace platform
