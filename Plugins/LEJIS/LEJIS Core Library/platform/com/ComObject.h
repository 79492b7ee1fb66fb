// The base of every public class of the library: automation through the type library, class information and errors.
#pragma once

#include "platform/com/ClassInformation.h"
#include "platform/com/Guard.h"
#include "platform/com/MemberCall.h"
#include "platform/com/TypeLibrary.h"
#include "platform/com/UnknownObject.h"
#include "platform/ComError.h"

#include <oaidl.h>
#include <unknwn.h>
#include <windows.h>
#include <wrl/client.h>

#include <type_traits>
#include <utility>

namespace platform {

// The automation half of one dual interface of a class. A client that calls this interface by name or number reaches
// its members by their own numbers, whatever other interfaces the object has. It adds nothing to the size of an object.
template <typename Coclass, typename Interface>
class DispatchOf : public Interface {
public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }

    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** information) override {
        if (!information) return E_POINTER;
        *information = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return Guard(__uuidof(Coclass), information, [] { return Microsoft::WRL::ComPtr<ITypeInfo>(InterfaceInfo()); });
    }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override {
        if (!names || !numbers || count == 0) return E_INVALIDARG;
        HRESULT found = S_OK;
        const HRESULT result =
            Guard(__uuidof(Coclass), [&] { found = InterfaceInfo()->GetIDsOfNames(names, count, numbers); });
        return FAILED(result) ? result : found;
    }

    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) override {
        // Clients release an object from inside of its calls.
        const Microsoft::WRL::ComPtr<Interface> self(this);
        HRESULT outcome = S_OK;
        const HRESULT entered = Guard(__uuidof(Coclass), [&] {
            const MemberCall call{InterfaceInfo(), self.Get(), __uuidof(Coclass), member, flags};
            outcome = call.Invoke(parameters, result, exception, argument);
        });
        return FAILED(entered) ? entered : outcome;
    }

private:
    static ITypeInfo* InterfaceInfo() {
        static const Microsoft::WRL::ComPtr<ITypeInfo> information = TypeInfoOf(__uuidof(Interface));
        return information.Get();
    }
};

template <typename Coclass, typename Dual>
struct Implemented<DispatchOf<Coclass, Dual>> {
    using Interface = Dual;
};

// The base by which a class implements an interface: a dual one with its automation half, another one as it is.
template <typename Coclass, typename Interface>
using Implementing =
    std::conditional_t<std::is_base_of_v<IDispatch, Interface>, DispatchOf<Coclass, Interface>, Interface>;

// The base of a public class. `Coclass` is the class in the type library, `Interface` its default interface.
template <typename Coclass, typename Interface, typename... MoreInterfaces>
class ComObject : public UnknownObject<Implementing<Coclass, Interface>, Implementing<Coclass, MoreInterfaces>...> {
    using Base = UnknownObject<Implementing<Coclass, Interface>, Implementing<Coclass, MoreInterfaces>...>;

public:
    using DefaultInterface = Interface;

    static REFCLSID ClassId() { return __uuidof(Coclass); }

    // The IDispatch of the default interface, even where the object has several dual interfaces.
    IDispatch* Dispatch() { return static_cast<Interface*>(this); }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object && ClassInformation::Has(iid)) return ClassInformation::Get(this->First(), ClassId(), iid, object);
        return Base::QueryInterface(iid, object);
    }

protected:
    template <typename... Arguments>
    HRESULT Guard(Arguments&&... arguments) noexcept {
        // Clients release an object from inside of its calls: in an event, or while the host works during a wait.
        const Microsoft::WRL::ComPtr<Interface> self(this->First());
        return platform::Guard(ClassId(), std::forward<Arguments>(arguments)...);
    }

    void* Find(REFIID iid) override {
        if (iid == __uuidof(IDispatch)) return Dispatch();
        // An object that is asked for its own class identifier returns itself, for ImplementationOf.
        if (iid == ClassId()) return this->First();
        return Base::Find(iid);
    }
};

// The object of class `Class` that a client passes as an interface. Throws the object error for no object, and the type
// mismatch for an object of another class or of another apartment.
template <typename Class>
Ref<Class> ImplementationOf(IUnknown* client) {
    if (!client) throw ObjectRequired();
    void* object = nullptr;
    if (FAILED(client->QueryInterface(Class::ClassId(), &object))) throw TypeMismatch();
    const Ref<Class> implementation(*static_cast<Class*>(static_cast<typename Class::DefaultInterface*>(object)));
    // This reference came from the query.
    implementation->Release();
    return implementation;
}

}  // namespace platform
