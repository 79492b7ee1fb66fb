// What every public class of the library is built on: automation through the type library, class information and
// errors.
#pragma once

#include "platform/com/Arguments.h"
#include "platform/com/ClassInformation.h"
#include "platform/com/Guard.h"
#include "platform/com/TypeLibrary.h"
#include "platform/com/UnknownObject.h"
#include "platform/ComError.h"

namespace platform {

// `Coclass` is the class in the type library, `Interface` its default interface.
template <typename Coclass, typename Interface, typename... MoreInterfaces>
class ComObject : public UnknownObject<Interface, MoreInterfaces...> {
    using Base = UnknownObject<Interface, MoreInterfaces...>;

public:
    using DefaultInterface = Interface;

    static REFCLSID ClassId() { return __uuidof(Coclass); }

    // Needed where this object has several interfaces that are automation's.
    IDispatch* Dispatch() { return static_cast<Interface*>(this); }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object && ClassInformation::Has(iid)) return ClassInformation::Get(this->First(), ClassId(), iid, object);
        return Base::QueryInterface(iid, object);
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }

    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** information) override {
        if (!information) return E_POINTER;
        *information = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return Guard(information, [] { return Microsoft::WRL::ComPtr<ITypeInfo>(InterfaceInfo()); });
    }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override {
        if (!names || !numbers || count == 0) return E_INVALIDARG;
        HRESULT found = S_OK;
        const HRESULT result = Guard([&] { found = InterfaceInfo()->GetIDsOfNames(names, count, numbers); });
        return FAILED(result) ? result : found;
    }

    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) override {
        if (!parameters || !IsSound(*parameters)) return E_INVALIDARG;
        HRESULT outcome = S_OK;
        const HRESULT entered = Guard([&] {
            outcome = InterfaceInfo()->Invoke(this->First(), member, flags, parameters, result, exception, argument);
        });
        return FAILED(entered) ? entered : outcome;
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

private:
    static ITypeInfo* InterfaceInfo() {
        static const Microsoft::WRL::ComPtr<ITypeInfo> information = TypeInfoOf(__uuidof(Interface));
        return information.Get();
    }
};

}  // namespace platform
