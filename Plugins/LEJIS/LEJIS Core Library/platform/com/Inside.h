// From the interfaces that clients pass to the objects of this library behind them.
#pragma once

#include "platform/com/Ref.h"
#include "platform/ComError.h"

#include <unknwn.h>

namespace platform {

// The object of class `Class` behind an interface. Raises the object error for no object, and the type mismatch for an
// object of another class or of another apartment.
template <typename Class>
Ref<Class> Inside(IUnknown* client) {
    if (!client) throw ObjectRequired();
    void* object = nullptr;
    if (FAILED(client->QueryInterface(Class::ClassId(), &object))) throw TypeMismatch();
    const Ref<Class> inside(*static_cast<Class*>(static_cast<typename Class::DefaultInterface*>(object)));
    // The reference that the query took.
    inside->Release();
    return inside;
}

}  // namespace platform
