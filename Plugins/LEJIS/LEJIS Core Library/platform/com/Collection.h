// The ordered, 1-based collection that the library hands out.
#pragma once

#include "platform/com/ComObject.h"

#include <comutil.h>
#include <ModuleInterfaces.h>

#include <string_view>
#include <vector>

namespace platform {

// Clients may add a value of any kind; the reader of the items decides which values are faults.
class Collection final : public ComObject<::Collection, ICollection> {
public:
    STDMETHODIMP Add(VARIANT newItem) override;
    STDMETHODIMP get_Count(long* result) override;
    STDMETHODIMP get_Item(long index, VARIANT* result) override;
    STDMETHODIMP Remove(long index) override;
    STDMETHODIMP get__NewEnum(IUnknown** result) override;

    void AddText(std::wstring_view text);
    void AddObject(IDispatch* object);

    size_t Count() const { return items_.size(); }
    const _variant_t& Item(long index) const;

    // An item as an object of a class of this library. Throws the type mismatch for any other item.
    template <typename Class>
    Ref<Class> ItemAs(long index) const {
        return ImplementationOf<Class>(ObjectIn(Item(index)));
    }

    // Passes the items to `visit` in the same way, each before it looks at the next one.
    template <typename Class, typename Visit>
    void ForEach(const Visit& visit) const {
        // The loop goes by number, because `visit` may change the collection.
        for (long index = 1; index <= static_cast<long>(Count()); ++index) visit(*ItemAs<Class>(index));
    }

    // All items at this moment, in the same way.
    template <typename Class>
    std::vector<Ref<Class>> ItemsAs() const {
        std::vector<Ref<Class>> objects;
        objects.reserve(items_.size());
        for (const _variant_t& item : items_) objects.push_back(ImplementationOf<Class>(ObjectIn(item)));
        return objects;
    }

private:
    static IUnknown* ObjectIn(const _variant_t& item);
    size_t Position(long index) const;

    std::vector<_variant_t> items_;
};

}  // namespace platform
