#include "platform/com/TypeLibrary.h"

#include "platform/com/Module.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <oleauto.h>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

constexpr wchar_t kProgIdPrefix[] = L"TVLejisCore.";

ITypeLib* ModuleTypeLibrary() {
    static const ComPtr<ITypeLib> library = LoadModuleTypeLibrary();
    return library.Get();
}

GUID GuidOf(ITypeInfo* information) {
    TYPEATTR* attributes = nullptr;
    Check(information->GetTypeAttr(&attributes));
    const GUID guid = attributes->guid;
    information->ReleaseTypeAttr(attributes);
    return guid;
}

UINT ImplementedTypes(ITypeInfo* information) {
    TYPEATTR* attributes = nullptr;
    Check(information->GetTypeAttr(&attributes));
    const UINT count = attributes->cImplTypes;
    information->ReleaseTypeAttr(attributes);
    return count;
}

bool IsDefaultEvents(ITypeInfo* classInformation, UINT index) {
    constexpr INT kDefaultEvents = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
    INT flags = 0;
    Check(classInformation->GetImplTypeFlags(index, &flags));
    return (flags & kDefaultEvents) == kDefaultEvents;
}

}  // namespace

ComPtr<ITypeLib> LoadModuleTypeLibrary() {
    ComPtr<ITypeLib> library;
    Check(LoadTypeLibEx(module::Path().c_str(), REGKIND_NONE, library.GetAddressOf()));
    return library;
}

ComPtr<ITypeInfo> TypeInfoOf(REFGUID guid) {
    ComPtr<ITypeInfo> information;
    Check(ModuleTypeLibrary()->GetTypeInfoOfGuid(guid, information.GetAddressOf()));
    return information;
}

std::wstring ClassNameOf(REFCLSID classId) {
    BSTR name = nullptr;
    Check(TypeInfoOf(classId)->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return TakeText(name);
}

std::wstring ProgIdOf(REFCLSID classId) { return kProgIdPrefix + ClassNameOf(classId); }

GUID DefaultEventsOf(REFCLSID classId) {
    const ComPtr<ITypeInfo> information = TypeInfoOf(classId);
    for (UINT index = 0; index < ImplementedTypes(information.Get()); ++index) {
        if (!IsDefaultEvents(information.Get(), index)) continue;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> events;
        Check(information->GetRefTypeOfImplType(index, &reference));
        Check(information->GetRefTypeInfo(reference, events.GetAddressOf()));
        return GuidOf(events.Get());
    }
    return GUID_NULL;
}

}  // namespace platform
