#include "platform/Conversions.h"

#include "platform/ComError.h"
#include "platform/Dates.h"
#include "platform/Text.h"

#include <ocidl.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

struct NamedType {
    VARTYPE type;
    const wchar_t* name;
};

constexpr NamedType kNamedTypes[] = {
    {VT_EMPTY, L"Empty"},     {VT_NULL, L"Null"},       {VT_I2, L"Integer"},      {VT_I4, L"Long"},
    {VT_R4, L"Single"},       {VT_R8, L"Double"},       {VT_CY, L"Currency"},     {VT_DATE, L"Date"},
    {VT_BSTR, L"String"},     {VT_ERROR, L"Error"},     {VT_BOOL, L"Boolean"},    {VT_VARIANT, L"Variant"},
    {VT_DECIMAL, L"Decimal"}, {VT_I1, L"SByte"},        {VT_UI1, L"Byte"},        {VT_UI2, L"UShort"},
    {VT_UI4, L"ULong"},       {VT_I8, L"LongLong"},     {VT_UI8, L"ULongLong"},   {VT_INT, L"Long"},
    {VT_UINT, L"ULong"},      {VT_DISPATCH, L"Object"}, {VT_UNKNOWN, L"Unknown"},
};

std::wstring PlainTypeName(VARTYPE type) {
    for (const NamedType& named : kNamedTypes) {
        if (named.type == type) return named.name;
    }
    return L"Unknown";
}

std::wstring NameOf(ITypeInfo* information) {
    BSTR name = nullptr;
    if (!information || FAILED(information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr)))
        return {};
    return TakeText(name);
}

std::wstring ClassName(IUnknown* object) {
    if (!object) return L"Nothing";
    ComPtr<ITypeInfo> information;
    ComPtr<IProvideClassInfo> provider;
    ComPtr<IDispatch> dispatch;
    if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(provider.GetAddressOf())))) {
        provider->GetClassInfo(information.GetAddressOf());
    } else if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())))) {
        dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, information.GetAddressOf());
    }
    const std::wstring name = NameOf(information.Get());
    return name.empty() ? L"Object" : name;
}

bool IsReferenceToNothing(const VARIANT& value) { return (V_VT(&value) & VT_BYREF) && !V_BYREF(&value); }

constexpr LCID kUserLocale = LOCALE_USER_DEFAULT;

// NaN converts to nothing, because the platforms disagree on what it becomes.
bool IsNaN(const VARIANT& value) {
    return (V_VT(&value) == VT_R8 && std::isnan(V_R8(&value))) || (V_VT(&value) == VT_R4 && std::isnan(V_R4(&value)));
}

size_t SkipDigits(std::wstring_view text, size_t at) {
    while (at < text.size() && text[at] >= L'0' && text[at] <= L'9') ++at;
    return at;
}

size_t SkipSign(std::wstring_view text, size_t at) {
    return at < text.size() && (text[at] == L'-' || text[at] == L'+') ? at + 1 : at;
}

// A whole number in digits alone, which reads alike in every locale. The platform looks up the locale's signs for each
// text, and an answer has thousands of them.
std::optional<long> InDigits(std::wstring_view text) {
    constexpr size_t kSurelyInRange = 9;
    if (text.empty() || text.size() > kSurelyInRange || SkipDigits(text, 0) != text.size()) return std::nullopt;
    long number = 0;
    for (const wchar_t digit : text) number = 10 * number + (digit - L'0');
    return number;
}

// The end of the number that begins here: after a sign, digits, and a point with digits.
size_t SkipDecimal(std::wstring_view text, size_t at) {
    at = SkipDigits(text, SkipSign(text, at));
    return at < text.size() && text[at] == L'.' ? SkipDigits(text, at + 1) : at;
}

size_t SkipExponent(std::wstring_view text, size_t at) {
    if (at == text.size() || (text[at] != L'e' && text[at] != L'E')) return at;
    const size_t digits = SkipSign(text, at + 1);
    const size_t end = SkipDigits(text, digits);
    return end > digits ? end : at;
}

std::wstring_view SkipWhiteSpace(std::wstring_view text) {
    text.remove_prefix(static_cast<size_t>(std::ranges::find_if_not(text, IsWhiteSpace) - text.begin()));
    return text;
}

double NumberWithPoint(std::wstring_view text) {
    // A fixed locale, so that the point is always the decimal point.
    constexpr LCID kEnglish = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    double number = 0;
    const HRESULT result = VarR8FromStr(InText(text), kEnglish, 0, &number);
    // A number beyond every double must not become the 0 of a text without a number.
    if (result == DISP_E_OVERFLOW) throw Overflow();
    return SUCCEEDED(result) ? number : 0;
}

bool Convert(const VARIANT& value, VARTYPE type, _variant_t& result) {
    if (IsNaN(value)) return false;
    return SUCCEEDED(VariantChangeTypeEx(&result, const_cast<VARIANT*>(&value), kUserLocale, VARIANT_ALPHABOOL, type));
}

}  // namespace

std::wstring TypeName(const VARIANT& value) {
    const VARTYPE type = V_VT(&value);
    if (type & VT_ARRAY) return PlainTypeName(type & VT_TYPEMASK) + L"()";
    if (type == VT_DISPATCH || type == VT_UNKNOWN) return ClassName(V_UNKNOWN(&value));
    return PlainTypeName(type);
}

bool RefersToNothing(const VARIANT& value) {
    if (IsReferenceToNothing(value)) return true;
    // The platform takes one step too: a reference to a reference is not a value, and may lead in a circle.
    return V_VT(&value) == (VT_BYREF | VT_VARIANT) && IsReferenceToNothing(*V_VARIANTREF(&value));
}

_variant_t Dereference(const VARIANT& value) {
    if (RefersToNothing(value)) throw TypeMismatch();
    _variant_t copy;
    Check(VariantCopyInd(&copy, const_cast<VARIANT*>(&value)));
    return copy;
}

_variant_t Null() {
    _variant_t null;
    V_VT(&null) = VT_NULL;
    return null;
}

std::wstring ToText(const VARIANT& value) {
    if (V_VT(&value) == VT_NULL) return {};
    if (V_VT(&value) == VT_BSTR) return CopyText(V_BSTR(&value));
    _variant_t text;
    if (!Convert(value, VT_BSTR, text)) throw TypeMismatch();
    return CopyText(V_BSTR(&text));
}

std::optional<DATE> ParseDate(std::wstring_view text) {
    // The platform takes fifty times as long for the same date.
    if (const auto date = ParseIsoDate(text)) return date;
    DATE date = 0;
    if (FAILED(VarDateFromStr(InText(text), kUserLocale, 0, &date))) return std::nullopt;
    return date;
}

std::optional<double> ParseNumber(std::wstring_view text) {
    if (const auto whole = InDigits(text)) return *whole;
    double number = 0;
    if (FAILED(VarR8FromStr(InText(text), kUserLocale, 0, &number))) return std::nullopt;
    return number;
}

std::optional<bool> ParseBoolean(std::wstring_view text) {
    // These are the texts of XML. The platform takes other letter cases and languages too, and its time.
    if (text == L"true") return true;
    if (text == L"false") return false;
    // Not every platform passes over the blanks itself.
    VARIANT_BOOL flag = VARIANT_FALSE;
    if (FAILED(VarBoolFromStr(InText(TrimBlanks(text)), kUserLocale, 0, &flag))) return std::nullopt;
    return flag != VARIANT_FALSE;
}

double LeadingDecimal(std::wstring_view text) {
    const std::wstring_view begin = SkipWhiteSpace(text);
    return NumberWithPoint(begin.substr(0, SkipDecimal(begin, 0)));
}

double LeadingNumber(std::wstring_view text) {
    const std::wstring_view begin = SkipWhiteSpace(text);
    return NumberWithPoint(begin.substr(0, SkipExponent(begin, SkipDecimal(begin, 0))));
}

long ParseLong(std::wstring_view text) {
    if (const auto whole = InDigits(text)) return *whole;
    LONG number = 0;
    const HRESULT result = VarI4FromStr(InText(text), kUserLocale, 0, &number);
    if (result == DISP_E_OVERFLOW) throw Overflow();
    if (FAILED(result)) throw TypeMismatch();
    return number;
}

std::optional<short> ParseShort(std::wstring_view text) {
    if (const auto whole = InDigits(text); whole && std::in_range<short>(*whole)) return static_cast<short>(*whole);
    SHORT number = 0;
    if (FAILED(VarI2FromStr(InText(text), kUserLocale, 0, &number))) return std::nullopt;
    return number;
}

template <>
std::optional<short> RoundTo<short>(const VARIANT& number) {
    _variant_t rounded;
    if (!Convert(number, VT_I2, rounded)) return std::nullopt;
    return V_I2(&rounded);
}

template <>
std::optional<long> RoundTo<long>(const VARIANT& number) {
    _variant_t rounded;
    if (!Convert(number, VT_I4, rounded)) return std::nullopt;
    return V_I4(&rounded);
}

}  // namespace platform
