#include "client/LateBound.h"

#include "support/Printing.h"

#include <algorithm>

namespace client {

using support::Hexadecimal;
using support::Utf8;

std::wstring Outcome::Text() const {
    if (V_VT(&value) != VT_BSTR) return L"(no text)";
    return std::wstring(V_BSTR(&value) ? V_BSTR(&value) : L"", SysStringLen(V_BSTR(&value)));
}

Outcome LateBound::Put(const wchar_t* name, const _variant_t& value) const {
    return Invoke(name, DISPATCH_PROPERTYPUT, {value}, {DISPID_PROPERTYPUT});
}

DISPID LateBound::NumberOf(const wchar_t* name) const {
    DISPID number = DISPID_UNKNOWN;
    auto* writable = const_cast<LPOLESTR>(name);
    object_->GetIDsOfNames(IID_NULL, &writable, 1, LOCALE_USER_DEFAULT, &number);
    return number;
}

Outcome LateBound::Invoke(const wchar_t* name, WORD kind, std::vector<_variant_t> arguments,
                          std::vector<DISPID> named) const {
    const DISPID number = NumberOf(name);
    EXPECT_NE(DISPID_UNKNOWN, number) << Utf8(name);
    return InvokeNumber(number, kind, std::move(arguments), std::move(named));
}

Outcome LateBound::InvokeNumber(DISPID member, WORD kind, std::vector<_variant_t> arguments,
                                std::vector<DISPID> named) const {
    // Automation passes arguments last one first.
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS parameters{arguments.data(), named.data(), static_cast<UINT>(arguments.size()),
                          static_cast<UINT>(named.size())};
    return InvokeWith(member, kind, &parameters);
}

Outcome LateBound::InvokeWith(DISPID member, WORD kind, DISPPARAMS* parameters) const {
    Outcome outcome;
    EXCEPINFO exception{};
    outcome.result = object_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, parameters, &outcome.value,
                                     &exception, &outcome.badArgument);
    outcome.number = exception.scode;
    outcome.description = support::Take(exception.bstrDescription);
    outcome.source = support::Take(exception.bstrSource);
    SysFreeString(exception.bstrHelpFile);
    return outcome;
}

LateBound CreateLateBound(const std::wstring& className) { return LateBound(CreateByName(className)); }

testing::AssertionResult RaisedBy(const Outcome& outcome, long number, const std::wstring& description) {
    const bool raised = outcome.result == DISP_E_EXCEPTION;
    if (raised && outcome.number == number && outcome.description == description) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected " << Hexadecimal(number) << " " << Utf8(description)
                                       << "\n     got " << Hexadecimal(outcome.result) << ": "
                                       << Hexadecimal(outcome.number) << " " << Utf8(outcome.description);
}

testing::AssertionResult Done(const Outcome& outcome) {
    if (outcome.result == S_OK) return testing::AssertionSuccess();
    return testing::AssertionFailure() << Hexadecimal(outcome.result) << ": " << Hexadecimal(outcome.number) << " "
                                       << Utf8(outcome.description);
}

}  // namespace client
