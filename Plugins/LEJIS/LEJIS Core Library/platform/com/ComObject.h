// What every public class of the library is built on: automation through the type library, class information and
// errors.
#pragma once

#include "platform/com/ClassInformation.h"
#include "platform/com/DispatchOf.h"
#include "platform/com/Guard.h"
#include "platform/com/UnknownObject.h"
#include "platform/ComError.h"

#include <oaidl.h>

#include <type_traits>
#include <utility>

namespace platform {

// The base by which a class implements an interface: a dual one with its automation half, another one as it is.
template <typename Coclass, typename Interface>
using Implementing =
    std::conditional_t<std::is_base_of_v<IDispatch, Interface>, DispatchOf<Coclass, Interface>, Interface>;

// `Coclass` is the class in the type library, `Interface` its default interface.
template <typename Coclass, typename Interface, typename... MoreInterfaces>
class ComObject : public UnknownObject<Implementing<Coclass, Interface>, Implementing<Coclass, MoreInterfaces>...> {
    using Base = UnknownObject<Implementing<Coclass, Interface>, Implementing<Coclass, MoreInterfaces>...>;

public:
    using DefaultInterface = Interface;

    static REFCLSID ClassId() { return __uuidof(Coclass); }

    // The default interface's, where this object has several that are automation's.
    IDispatch* Dispatch() { return static_cast<Interface*>(this); }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object && ClassInformation::Has(iid)) return ClassInformation::Get(this->First(), ClassId(), iid, object);
        return Base::QueryInterface(iid, object);
    }

protected:
    template <typename... Arguments>
    HRESULT Guard(Arguments&&... arguments) noexcept {
        // Clients let go of an object from inside of its calls: in an event, or while the host works during a wait.
        const Microsoft::WRL::ComPtr<Interface> self(this->First());
        return platform::Guard(ClassId(), std::forward<Arguments>(arguments)...);
    }

    void* Find(REFIID iid) override {
        if (iid == __uuidof(IDispatch)) return Dispatch();
        // Asked for its own class identifier, an object hands out its inside: see Inside.h.
        if (iid == ClassId()) return this->First();
        return Base::Find(iid);
    }
};

}  // namespace platform
