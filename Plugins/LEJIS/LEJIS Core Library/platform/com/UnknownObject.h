// Identity and lifetime of COM objects, and references to them that are never null.
#pragma once

#include "platform/com/Module.h"
#include "platform/thread/ThreadState.h"

#include <unknwn.h>
#include <windows.h>
#include <wrl/client.h>

#include <atomic>
#include <tuple>
#include <type_traits>
#include <utility>

namespace platform {

// A reference that is counted like ComPtr and is never null, so its object is used without a test.
template <typename Class>
class Ref {
public:
    explicit Ref(Class& object) : object_(&object) {}
    // There are copies but no moves: a reference that was moved from would be null.
    Ref(const Ref&) = default;
    Ref& operator=(const Ref&) = default;

    Class& operator*() const { return *object_.Get(); }
    Class* operator->() const { return object_.Get(); }
    Class* Get() const { return object_.Get(); }

    // For a reference that may be null.
    template <typename Base>
    requires std::is_convertible_v<Class*, Base*>
    operator Microsoft::WRL::ComPtr<Base>() const { return Microsoft::WRL::ComPtr<Base>(object_.Get()); }

private:
    Microsoft::WRL::ComPtr<Class> object_;
};

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

    // The object as this interface, without a new reference; null when it does not have the interface.
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
