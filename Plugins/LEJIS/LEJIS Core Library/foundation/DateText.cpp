#include "foundation/DateText.h"

#include "platform/Dates.h"

#include <cwchar>

namespace lejis {

std::wstring FormatNullableDate(const NullableDate& holder) {
    if (!holder.Date()) return {};
    const SYSTEMTIME time = platform::CalendarTime(*holder.Date());
    wchar_t text[16];
    swprintf(text, ARRAYSIZE(text), L"%04u-%02u-%02u", time.wYear, time.wMonth, time.wDay);
    return text;
}

std::wstring FormatNullableTime(const NullableDate& holder) {
    if (!holder.Date()) return {};
    const SYSTEMTIME time = platform::CalendarTime(*holder.Date());
    wchar_t text[16];
    swprintf(text, ARRAYSIZE(text), L"%02u:%02u:%02u", time.wHour, time.wMinute, time.wSecond);
    return text;
}

}  // namespace lejis
