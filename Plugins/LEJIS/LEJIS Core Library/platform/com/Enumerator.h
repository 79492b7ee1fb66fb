// One enumerator for all of COM's enumerations: IEnumVARIANT, IEnumConnections, IEnumConnectionPoints.
#pragma once

#include "platform/com/Guard.h"
#include "platform/com/UnknownObject.h"

#include <windows.h>

#include <algorithm>
#include <functional>
#include <utility>

namespace platform {

// The items to enumerate. The enumerator asks for them anew at each step, so they may grow or shrink meanwhile.
template <typename Item>
struct Enumerable {
    std::function<ULONG()> count;
    std::function<void(ULONG position, Item* item)> copy;
    std::function<void(Item* item)> clear;
};

template <typename Interface, typename Item>
class Enumerator final : public UnknownObject<Interface> {
public:
    explicit Enumerator(Enumerable<Item> items, ULONG position = 0) : items_(std::move(items)), position_(position) {}

    STDMETHODIMP Next(ULONG wanted, Item* items, ULONG* fetched) override {
        if (fetched) *fetched = 0;
        if (!items || (!fetched && wanted != 1)) return E_POINTER;
        ULONG copied = 0;
        const HRESULT result = Guard(GUID_NULL, [&] {
            for (; copied < wanted && position_ + copied < items_.count(); ++copied) {
                items_.copy(position_ + copied, &items[copied]);
            }
        });
        if (FAILED(result)) {
            std::for_each(items, items + copied, [&](Item& item) { items_.clear(&item); });
            return result;
        }
        position_ += copied;
        if (fetched) *fetched = copied;
        return copied == wanted ? S_OK : S_FALSE;
    }

    STDMETHODIMP Skip(ULONG wanted) override {
        const ULONG count = items_.count();
        const ULONG left = count > position_ ? count - position_ : 0;
        position_ += std::min(wanted, left);
        return wanted <= left ? S_OK : S_FALSE;
    }

    STDMETHODIMP Reset() override {
        position_ = 0;
        return S_OK;
    }

    STDMETHODIMP Clone(Interface** clone) override {
        return Guard(GUID_NULL, clone, [&] { return Create<Enumerator>(items_, position_); });
    }

private:
    const Enumerable<Item> items_;
    ULONG position_;
};

}  // namespace platform
