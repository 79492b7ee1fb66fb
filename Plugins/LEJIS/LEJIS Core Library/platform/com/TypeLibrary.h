// What type libraries tell of classes, members and events: libraries of others, and the one inside the module.
#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>

namespace platform {

// The attributes of a type. The destructor releases them.
class TypeAttributes {
public:
    explicit TypeAttributes(ITypeInfo* information);
    ~TypeAttributes() { information_->ReleaseTypeAttr(attributes_); }
    TypeAttributes(const TypeAttributes&) = delete;
    TypeAttributes& operator=(const TypeAttributes&) = delete;

    const TYPEATTR& operator*() const { return *attributes_; }
    const TYPEATTR* operator->() const { return attributes_; }

private:
    const Microsoft::WRL::ComPtr<ITypeInfo> information_;
    TYPEATTR* attributes_ = nullptr;
};

// The events that a class raises by default; null for a class without events.
Microsoft::WRL::ComPtr<ITypeInfo> DefaultEventsOf(ITypeInfo* classInformation);

// The type library inside the module.
Microsoft::WRL::ComPtr<ITypeLib> LoadModuleTypeLibrary();

// The description of a class, interface or event set. Throws when the type library does not have it.
Microsoft::WRL::ComPtr<ITypeInfo> TypeInfoOf(REFGUID guid);

// The name of the type library.
std::wstring LibraryName();

// The name of a class in the type library, and the ProgID that clients create it by: the names of library and class
// with a dot between them.
std::wstring ClassNameOf(REFCLSID classId);
std::wstring ProgIdOf(REFCLSID classId);

// The events that a class raises by default; GUID_NULL for a class without events.
GUID DefaultEventsOf(REFCLSID classId);

}  // namespace platform
