#include "platform/com/Collection.h"

#include "platform/com/Enumerator.h"
#include "platform/Conversions.h"

#include <oleauto.h>

#include <string>

using Microsoft::WRL::ComPtr;

namespace platform {

STDMETHODIMP Collection::Add(VARIANT newItem) {
    return Guard([&] { items_.push_back(Dereference(newItem)); });
}

STDMETHODIMP Collection::get_Count(long* result) {
    return Guard(result, [&] { return static_cast<long>(Count()); });
}

STDMETHODIMP Collection::get_Item(long index, VARIANT* result) {
    return Guard(result, [&] { return Item(index); });
}

STDMETHODIMP Collection::Remove(long index) {
    return Guard([&] {
        const auto position = items_.begin() + static_cast<std::ptrdiff_t>(Position(index));
        // The item is released after the collection is whole again: its end may call back into the collection.
        const _variant_t removed = *position;
        items_.erase(position);
    });
}

STDMETHODIMP Collection::get__NewEnum(IUnknown** result) {
    return Guard(result, [&] {
        const ComPtr<Collection> self(this);
        return Create<Enumerator<IEnumVARIANT, VARIANT>>(Enumerable<VARIANT>{
            [self] { return static_cast<ULONG>(self->Count()); },
            [self](ULONG position, VARIANT* item) { *item = _variant_t(self->items_.at(position)).Detach(); },
            [](VARIANT* item) { VariantClear(item); }});
    });
}

void Collection::AddText(std::wstring_view text) { items_.emplace_back(ToBstr(text)); }

void Collection::AddObject(IDispatch* object) { items_.emplace_back(object); }

const _variant_t& Collection::Item(long index) const { return items_[Position(index)]; }

IUnknown* Collection::ObjectIn(const _variant_t& item) {
    if (V_VT(&item) != VT_DISPATCH && V_VT(&item) != VT_UNKNOWN) throw TypeMismatch();
    return V_UNKNOWN(&item);
}

size_t Collection::Position(long index) const {
    if (index < 1 || static_cast<size_t>(index) > items_.size()) {
        throw ComError(DISP_E_BADINDEX, L"There is no item " + std::to_wstring(index) + L": the collection holds " +
                                            std::to_wstring(items_.size()) + L".");
    }
    return static_cast<size_t>(index) - 1;
}

}  // namespace platform
