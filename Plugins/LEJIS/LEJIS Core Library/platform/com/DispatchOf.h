#pragma once

#include "platform/com/Guard.h"
#include "platform/com/MemberCall.h"
#include "platform/com/TypeLibrary.h"
#include "platform/com/UnknownObject.h"

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform {

// The automation half of one dual interface of a class: a client that calls this interface by name and number reaches
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
        // Clients let go of an object from inside of its calls.
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

}  // namespace platform
