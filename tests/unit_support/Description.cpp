#include "unit_support/Description.h"

#include "platform/com/Collection.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <TVLejisCore.h>

#include <cwchar>
#include <map>
#include <vector>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace support {
namespace {

struct Property {
    std::wstring name;
    DISPID number;
};
using Properties = std::vector<Property>;

struct LessGuid {
    bool operator()(const GUID& one, const GUID& other) const { return memcmp(&one, &other, sizeof one) < 0; }
};

Properties PropertiesOf(ITypeInfo* information, WORD functions) {
    Properties properties;
    for (UINT index = 0; index < functions; ++index) {
        FUNCDESC* function = nullptr;
        Check(information->GetFuncDesc(index, &function));
        if (function->invkind == INVOKE_PROPERTYGET && function->cParams == 0 && function->memid >= 0) {
            BSTR name = nullptr;
            UINT count = 0;
            Check(information->GetNames(function->memid, &name, 1, &count));
            properties.push_back({platform::TakeText(name), function->memid});
        }
        information->ReleaseFuncDesc(function);
    }
    return properties;
}

// The type library is asked once for each interface.
const Properties& PropertiesOf(IDispatch* object) {
    static std::map<GUID, Properties, LessGuid> known;
    ComPtr<ITypeInfo> information;
    TYPEATTR* attributes = nullptr;
    Check(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, information.GetAddressOf()));
    Check(information->GetTypeAttr(&attributes));
    const auto [place, isNew] = known.try_emplace(attributes->guid);
    if (isNew) place->second = PropertiesOf(information.Get(), attributes->cFuncs);
    information->ReleaseTypeAttr(attributes);
    return place->second;
}

void Describe(IDispatch* object, std::wstring& text);

void Describe(const VARIANT& value, std::wstring& text) {
    wchar_t number[64];
    switch (V_VT(&value)) {
        case VT_BSTR:
            text += L"'" + platform::CopyText(V_BSTR(&value)) + L"'";
            break;
        case VT_DISPATCH:
            Describe(V_DISPATCH(&value), text);
            break;
        case VT_DATE:
            std::swprintf(number, std::size(number), L"%.9f", V_DATE(&value));
            text += number;
            break;
        case VT_NULL:
            text += L"null";
            break;
        default:
            text += std::to_wstring(static_cast<long>(_variant_t(value)));
    }
}

void DescribeItems(ICollection* items, std::wstring& text) {
    long count = 0;
    Check(items->get_Count(&count));
    text += std::to_wstring(count) + L" items";
    for (long index = 1; index <= count; ++index) {
        _variant_t item;
        Check(items->get_Item(index, &item));
        text += L"\n";
        Describe(item, text);
    }
}

void Describe(IDispatch* object, std::wstring& text) {
    ComPtr<ICollection> items;
    if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(items.GetAddressOf())))) return DescribeItems(items.Get(), text);
    for (const Property& property : PropertiesOf(object)) {
        DISPPARAMS none{};
        _variant_t value;
        Check(object->Invoke(property.number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value,
                             nullptr, nullptr));
        text += property.name + L"=";
        Describe(value, text);
        text += L";";
    }
}

}  // namespace

std::wstring Description(IDispatch* object) {
    std::wstring text;
    Describe(object, text);
    return text;
}

}  // namespace support
