// The type library inside the module: what the public classes, their members and events are.
#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>

namespace platform {

Microsoft::WRL::ComPtr<ITypeLib> LoadModuleTypeLibrary();

// The description of a class, interface or event set. Raises when the type library has none.
Microsoft::WRL::ComPtr<ITypeInfo> TypeInfoOf(REFGUID guid);

// The name of the type library.
std::wstring LibraryName();

// The name of a class in the type library, and the ProgID that clients create it by: both names, with a dot between.
std::wstring ClassNameOf(REFCLSID classId);
std::wstring ProgIdOf(REFCLSID classId);

// The events that a class raises by default; GUID_NULL for a class without events.
GUID DefaultEventsOf(REFCLSID classId);

}  // namespace platform
