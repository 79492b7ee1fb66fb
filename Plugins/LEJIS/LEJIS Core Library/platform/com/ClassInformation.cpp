#include "platform/com/ClassInformation.h"

#include "platform/com/Guard.h"
#include "platform/com/TypeLibrary.h"

#include <new>

using Microsoft::WRL::ComPtr;

namespace platform {

bool ClassInformation::Has(REFIID iid) {
    return iid == __uuidof(ISupportErrorInfo) || iid == __uuidof(IProvideClassInfo) ||
           iid == __uuidof(IProvideClassInfo2);
}

HRESULT ClassInformation::Get(IUnknown* object, REFCLSID classId, REFIID iid, void** result) noexcept {
    // There is no guard here: it would empty the error object that the client asks for.
    const ComPtr<ClassInformation> made(new (std::nothrow) ClassInformation(object, classId));
    *result = nullptr;
    if (!made) return E_OUTOFMEMORY;
    made->AddRef();
    if (iid == __uuidof(ISupportErrorInfo)) {
        *result = static_cast<ISupportErrorInfo*>(made.Get());
    } else {
        *result = static_cast<IProvideClassInfo2*>(made.Get());
    }
    return S_OK;
}

STDMETHODIMP ClassInformation::InterfaceSupportsErrorInfo(REFIID iid) {
    ComPtr<IUnknown> found;
    return SUCCEEDED(object_->QueryInterface(iid, reinterpret_cast<void**>(found.GetAddressOf()))) ? S_OK : S_FALSE;
}

STDMETHODIMP ClassInformation::GetClassInfo(ITypeInfo** information) {
    return Guard(classId_, information, [&] { return TypeInfoOf(classId_); });
}

STDMETHODIMP ClassInformation::GetGUID(DWORD kind, GUID* guid) {
    if (!guid) return E_POINTER;
    *guid = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
    return Guard(classId_, [&] { *guid = DefaultEventsOf(classId_); });
}

}  // namespace platform
