// Identity and lifetime of a COM object with the given interfaces, the first of which stands for the object itself.
#pragma once

#include "platform/com/Living.h"
#include "platform/com/Module.h"
#include "platform/com/Ref.h"
#include "platform/thread/ThreadState.h"

#include <unknwn.h>
#include <windows.h>
#include <wrl/client.h>

#include <atomic>
#include <tuple>
#include <utility>

namespace platform {

// The interface that a base of an object is known by: itself, unless a base says otherwise.
template <typename Base>
struct Implemented {
    using Interface = Base;
};

template <typename... Interfaces>
class UnknownObject : public Interfaces... {
public:
    UnknownObject(const UnknownObject&) = delete;
    UnknownObject& operator=(const UnknownObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = Find(iid);
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }

    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            // Code that runs during destruction may still take and drop references.
            references_ = kBeingDestroyed;
            delete this;
        }
        return left;
    }

protected:
    UnknownObject() {
        module::Retain();
        thread::CountObject();
        living::Enter(this, [](const void* object) -> const std::type_info& {
            return typeid(*static_cast<const UnknownObject*>(object));
        });
    }

    virtual ~UnknownObject() {
        living::Leave(this);
        thread::UncountObject();
        module::Release();
    }

    // The object as this interface, without a new reference; null when it has none such.
    virtual void* Find(REFIID iid) {
        void* found = iid == __uuidof(IUnknown) ? First() : nullptr;
        const auto take = [&](REFIID own, void* base) {
            if (!found && iid == own) found = base;
        };
        (take(__uuidof(typename Implemented<Interfaces>::Interface), static_cast<Interfaces*>(this)), ...);
        return found;
    }

    auto* First() { return static_cast<std::tuple_element_t<0, std::tuple<Interfaces...>>*>(this); }

private:
    static constexpr ULONG kBeingDestroyed = 0x40000000;

    std::atomic<ULONG> references_{0};
};

// A new object of a COM class of this library.
template <typename Class, typename... Arguments>
Ref<Class> Create(Arguments&&... arguments) {
    return Ref<Class>(*new Class(std::forward<Arguments>(arguments)...));
}

}  // namespace platform
