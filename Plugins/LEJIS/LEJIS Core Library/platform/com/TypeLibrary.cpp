#include "platform/com/TypeLibrary.h"

#include "platform/com/Module.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <oleauto.h>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

bool IsDefaultEvents(ITypeInfo* classInformation, UINT index) {
    constexpr INT kDefaultEvents = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
    INT flags = 0;
    Check(classInformation->GetImplTypeFlags(index, &flags));
    return (flags & kDefaultEvents) == kDefaultEvents;
}

ITypeLib* ModuleTypeLibrary() {
    static const ComPtr<ITypeLib> library = LoadModuleTypeLibrary();
    return library.Get();
}

}  // namespace

TypeAttributes::TypeAttributes(ITypeInfo* information) : information_(information) {
    Check(information->GetTypeAttr(&attributes_));
}

ComPtr<ITypeInfo> DefaultEventsOf(ITypeInfo* classInformation) {
    ComPtr<ITypeInfo> events;
    const TypeAttributes type(classInformation);
    for (UINT index = 0; index < type->cImplTypes; ++index) {
        if (!IsDefaultEvents(classInformation, index)) continue;
        HREFTYPE reference = 0;
        Check(classInformation->GetRefTypeOfImplType(index, &reference));
        Check(classInformation->GetRefTypeInfo(reference, events.GetAddressOf()));
        break;
    }
    return events;
}

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

std::wstring LibraryName() {
    BSTR name = nullptr;
    Check(ModuleTypeLibrary()->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return TakeText(name);
}

std::wstring ProgIdOf(REFCLSID classId) { return LibraryName() + L'.' + ClassNameOf(classId); }

GUID DefaultEventsOf(REFCLSID classId) {
    const ComPtr<ITypeInfo> events = DefaultEventsOf(TypeInfoOf(classId).Get());
    return events ? TypeAttributes(events.Get())->guid : GUID_NULL;
}

}  // namespace platform
