// What type libraries tell of classes and interfaces, the library's own or somebody else's.
#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform {

// The attributes that are plain values; the pointers in them lead nowhere any more.
TYPEATTR AttributesOf(ITypeInfo* information);

// The events that a class raises by default; null for a class without events.
Microsoft::WRL::ComPtr<ITypeInfo> DefaultEventsOf(ITypeInfo* classInformation);

}  // namespace platform
