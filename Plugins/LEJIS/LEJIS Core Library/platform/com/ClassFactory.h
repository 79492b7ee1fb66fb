// The creatable classes, and the factory that makes their objects for clients.
#pragma once

#include "platform/com/UnknownObject.h"

#include <windows.h>

#include <span>

namespace platform {

// One row of the table of creatable classes.
struct CreatableClass {
    const CLSID& id;
    Microsoft::WRL::ComPtr<IUnknown> (*create)();
};

template <typename Class>
CreatableClass Creatable() {
    return {Class::ClassId(), [] { return Microsoft::WRL::ComPtr<IUnknown>(Create<Class>()->Dispatch()); }};
}

// The factory of one class of the table, as DllGetClassObject gives it.
HRESULT GetClassFactory(std::span<const CreatableClass> classes, REFCLSID classId, REFIID iid, void** factory) noexcept;

}  // namespace platform
