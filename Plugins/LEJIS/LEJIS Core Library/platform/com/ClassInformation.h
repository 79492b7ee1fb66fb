#pragma once

#include "platform/com/UnknownObject.h"

#include <ocidl.h>

namespace platform {

// Tells about the class of an object and its errors. Clients seldom ask, and an answer holds thousands of objects, so
// these interfaces are made on demand and no object carries them.
class ClassInformation final : public UnknownObject<ISupportErrorInfo, IProvideClassInfo2> {
public:
    ClassInformation(IUnknown* object, REFCLSID classId) : object_(object), classId_(classId) {}

    static bool Has(REFIID iid);
    // One of these interfaces, for an object of this class.
    static HRESULT Get(IUnknown* object, REFCLSID classId, REFIID iid, void** result) noexcept;

    // The identity is that of the object.
    STDMETHODIMP QueryInterface(REFIID iid, void** result) override { return object_->QueryInterface(iid, result); }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override;
    STDMETHODIMP GetClassInfo(ITypeInfo** information) override;
    STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;

private:
    const Microsoft::WRL::ComPtr<IUnknown> object_;
    const CLSID classId_;
};

}  // namespace platform
