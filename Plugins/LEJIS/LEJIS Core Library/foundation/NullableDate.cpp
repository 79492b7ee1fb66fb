#include "foundation/NullableDate.h"

#include "foundation/HolderErrors.h"
#include "platform/Conversions.h"
#include "platform/Dates.h"
#include "platform/Text.h"

#include <cwchar>

namespace lejis {

STDMETHODIMP NullableDate::get_Value(VARIANT* result) {
    return Guard(result, [&] { return date_ ? _variant_t(*date_, VT_DATE) : platform::Null(); });
}

STDMETHODIMP NullableDate::put_Value(VARIANT newValue) {
    return Guard([&] { Assign(platform::Dereference(newValue)); });
}

void NullableDate::Assign(const VARIANT& value) {
    switch (V_VT(&value)) {
        case VT_NULL:
            date_.reset();
            return;
        case VT_DATE:
            date_ = V_DATE(&value);
            return;
        case VT_BSTR: {
            const auto date = platform::ParseDate(platform::CopyText(V_BSTR(&value)));
            if (!date) throw NotAValid(L"date");
            date_ = date;
            return;
        }
        default:
            throw CannotAssign(value, platform::ClassNameOf(ClassId()));
    }
}

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
