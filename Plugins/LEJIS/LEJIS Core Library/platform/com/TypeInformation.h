// What type libraries tell of classes and interfaces, the library's own or somebody else's.
#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform {

// The attributes of a type, given back at the end.
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

}  // namespace platform
