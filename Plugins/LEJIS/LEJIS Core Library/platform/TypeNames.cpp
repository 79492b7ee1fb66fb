#include "platform/Conversions.h"

#include "platform/Text.h"

#include <ocidl.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <iterator>

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

}  // namespace

std::wstring TypeName(const VARIANT& value) {
    const VARTYPE type = V_VT(&value);
    if (type & VT_ARRAY) return PlainTypeName(type & VT_TYPEMASK) + L"()";
    if (type == VT_DISPATCH || type == VT_UNKNOWN) return ClassName(V_UNKNOWN(&value));
    return PlainTypeName(type);
}

}  // namespace platform
