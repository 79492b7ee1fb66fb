// Calls to automation objects of others by member name. Failures are thrown with the callee's own number and text.
#pragma once

#include <comutil.h>
#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>
#include <vector>

namespace platform {

_variant_t CallMember(IDispatch* object, const wchar_t* name, std::vector<_variant_t> arguments = {});
_variant_t GetMember(IDispatch* object, const wchar_t* name);
void PutMember(IDispatch* object, const wchar_t* name, _variant_t value);

// A new object of the class with this ProgID; null where the class is not registered.
Microsoft::WRL::ComPtr<IDispatch> CreateRegistered(const wchar_t* progId);

}  // namespace platform
