// The library's objects and texts, as its getters hand them out.
#pragma once

#include "library/Library.h"

namespace lejis_client {

template <typename Owner, typename Member>
Microsoft::WRL::ComPtr<Member> Part(Owner* owner, HRESULT (STDMETHODCALLTYPE Owner::*get)(Member**)) {
    Microsoft::WRL::ComPtr<Member> part;
    Check((owner->*get)(&part));
    return part;
}

template <typename Owner>
std::wstring TextOf(Owner* owner, HRESULT (STDMETHODCALLTYPE Owner::*get)(BSTR*)) {
    _bstr_t text;
    Check((owner->*get)(text.GetAddress()));
    return Text(text);
}

// What a holder of a date or a number holds; it may be Null.
template <typename Owner, typename Holder>
_variant_t ValueOf(Owner* owner, HRESULT (STDMETHODCALLTYPE Owner::*get)(Holder**)) {
    _variant_t value;
    Check(Part(owner, get)->get_Value(&value));
    return value;
}

// The objects of a collection, in its order.
template <typename Interface>
std::vector<Microsoft::WRL::ComPtr<Interface>> Objects(ICollection* collection) {
    long count = 0;
    Check(collection->get_Count(&count));
    std::vector<Microsoft::WRL::ComPtr<Interface>> objects(static_cast<std::size_t>(count));
    for (long index = 1; index <= count; ++index) {
        _variant_t item;
        Check(collection->get_Item(index, &item));
        const Microsoft::WRL::ComPtr<IUnknown> unknown = static_cast<IUnknown*>(item);
        Check(unknown.As(&objects[static_cast<std::size_t>(index - 1)]));
    }
    return objects;
}

}  // namespace lejis_client
