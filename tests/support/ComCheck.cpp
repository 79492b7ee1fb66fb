#include "support/ComCheck.h"

#include "support/Printing.h"

#include <oleauto.h>

using Microsoft::WRL::ComPtr;

namespace support {

ErrorSeen TakeError(HRESULT result) {
    ErrorSeen seen{result, {}, {}};
    ComPtr<IErrorInfo> information;
    if (GetErrorInfo(0, information.GetAddressOf()) != S_OK) return seen;
    BSTR text = nullptr;
    if (SUCCEEDED(information->GetDescription(&text))) seen.description = Take(text);
    text = nullptr;
    if (SUCCEEDED(information->GetSource(&text))) seen.source = Take(text);
    return seen;
}

testing::AssertionResult Succeeded(const char* call, HRESULT result) {
    if (SUCCEEDED(result)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << call << " failed with " << Hexadecimal(result) << " "
                                       << Utf8(TakeError(result).description);
}

testing::AssertionResult FailedWith(HRESULT result, long number, const std::wstring& description) {
    const ErrorSeen seen = TakeError(result);
    if (FAILED(result) && seen.number == number && seen.description == description) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected " << Hexadecimal(number) << " " << Utf8(description)
                                       << "\n     got " << Hexadecimal(result) << " " << Utf8(seen.description);
}

_bstr_t Bstr(const std::wstring& text) {
    return _bstr_t(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())), false);
}

std::wstring Take(BSTR text) {
    const std::wstring copy(text ? text : L"", SysStringLen(text));
    SysFreeString(text);
    return copy;
}

_variant_t Null() {
    _variant_t null;
    V_VT(&null) = VT_NULL;
    return null;
}

_variant_t Nothing() { return _variant_t(static_cast<IDispatch*>(nullptr)); }

_variant_t Date(const wchar_t* text) {
    DATE date = 0;
    EXPECT_OK(VarDateFromStr(const_cast<OLECHAR*>(text), LOCALE_USER_DEFAULT, 0, &date));
    return _variant_t(date, VT_DATE);
}

}  // namespace support
