#include "library/CardFields.h"

#include "library/Library.h"

#include <map>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

struct Getter {
    std::wstring name;
    DISPID id;
};

bool IsField(const FUNCDESC& function) {
    constexpr WORD kNotForClients = FUNCFLAG_FRESTRICTED | FUNCFLAG_FHIDDEN;
    return function.invkind == INVOKE_PROPERTYGET && function.cParams == 0 && !(function.wFuncFlags & kNotForClients);
}

std::wstring NameOf(ITypeInfo* type, DISPID id) {
    _bstr_t name;
    Check(type->GetDocumentation(id, name.GetAddress(), nullptr, nullptr, nullptr));
    return Text(name);
}

std::vector<Getter> GettersOf(ITypeInfo* type, UINT functions) {
    std::vector<Getter> getters;
    for (UINT index = 0; index < functions; ++index) {
        FUNCDESC* function = nullptr;
        Check(type->GetFuncDesc(index, &function));
        const bool isField = IsField(*function);
        const DISPID id = function->memid;
        type->ReleaseFuncDesc(function);
        if (isField) getters.push_back({NameOf(type, id), id});
    }
    return getters;
}

// A class has as many cards as are found; its list is made once.
const std::vector<Getter>& GettersOf(IDispatch* card) {
    static std::map<std::wstring, std::vector<Getter>> known;
    ComPtr<ITypeInfo> type;
    Check(card->GetTypeInfo(0, LOCALE_NEUTRAL, &type));
    TYPEATTR* attributes = nullptr;
    Check(type->GetTypeAttr(&attributes));
    const UINT functions = attributes->cFuncs;
    type->ReleaseTypeAttr(attributes);
    const std::wstring name = NameOf(type.Get(), MEMBERID_NIL);
    const auto found = known.find(name);
    return found != known.end() ? found->second : known[name] = GettersOf(type.Get(), functions);
}

_variant_t Get(IDispatch* object, DISPID id) {
    DISPPARAMS none = {};
    _variant_t value;
    Check(object->Invoke(id, IID_NULL, LOCALE_NEUTRAL, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr));
    return value;
}

// Holders of dates and numbers have their value as their default member.
_variant_t Held(const _variant_t& value) {
    if (value.vt != VT_DISPATCH || !value.pdispVal) return value;
    for (const Getter& getter : GettersOf(value.pdispVal)) {
        if (getter.id == DISPID_VALUE) return Get(value.pdispVal, DISPID_VALUE);
    }
    return value;
}

}  // namespace

std::vector<CardField> FieldsOf(IDispatch* card) {
    std::vector<CardField> fields;
    for (const Getter& getter : GettersOf(card)) fields.push_back({getter.name, Held(Get(card, getter.id))});
    return fields;
}

}  // namespace lejis_client
