#include "search/CardJson.h"

#include "library/CardFields.h"
#include "library/Members.h"
#include "text/IsoTime.h"

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

Json ObjectJson(IDispatch* object) {
    if (!object) return nullptr;
    ComPtr<ICollection> collection;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&collection)))) return CardJson(object);
    Json list = Json::array();
    for (const auto& item : Objects<IDispatch>(collection.Get())) list.push_back(CardJson(item.Get()));
    return list;
}

Json ValueJson(const _variant_t& value) {
    switch (value.vt) {
        case VT_EMPTY:
        case VT_NULL:
            return nullptr;
        case VT_BOOL:
            return value.boolVal != VARIANT_FALSE;
        case VT_I2:
        case VT_I4:
            return static_cast<long>(value);
        case VT_DATE:
            return JsonText(IsoTime(value.date));
        case VT_DISPATCH:
            return ObjectJson(value.pdispVal);
        default:
            return JsonText(Text(_bstr_t(value)));
    }
}

}  // namespace

Json CardJson(IDispatch* card) {
    Json object = Json::object();
    for (const CardField& field : FieldsOf(card))
        object[JsonText(field.name).get<std::string>()] = ValueJson(field.value);
    return object;
}

}  // namespace lejis_client
