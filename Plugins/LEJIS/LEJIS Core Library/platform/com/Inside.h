// From the interfaces that clients pass to the objects of this library behind them.
#pragma once

#include "platform/ComError.h"

#include <unknwn.h>
#include <wrl/client.h>

namespace platform {

// The object of class `Class` behind an interface. Raises the object error for no object, and the type mismatch for an
// object of another class or of another apartment.
template <typename Class>
Microsoft::WRL::ComPtr<Class> Inside(IUnknown* client) {
    if (!client) throw ObjectRequired();
    void* object = nullptr;
    if (FAILED(client->QueryInterface(Class::ClassId(), &object))) throw TypeMismatch();
    Microsoft::WRL::ComPtr<Class> inside;
    // Not by Attach: mingw-w64's takes a second reference.
    *inside.GetAddressOf() = static_cast<Class*>(static_cast<typename Class::DefaultInterface*>(object));
    return inside;
}

}  // namespace platform
