#include "foundation/LejisCommon.h"

#include "foundation/NullableDate.h"

namespace lejis {
namespace {

auto HolderOf(DATE date) {
    auto holder = platform::Create<NullableDate>();
    holder->Set(date);
    return holder;
}

}  // namespace

STDMETHODIMP LejisCommon::LejisFormatDate(DATE theDate, BSTR* result) {
    return Guard(result, [&] { return FormatNullableDate(*HolderOf(theDate)); });
}

STDMETHODIMP LejisCommon::LejisFormatTime(DATE theDate, BSTR* result) {
    return Guard(result, [&] { return FormatNullableTime(*HolderOf(theDate)); });
}

}  // namespace lejis
