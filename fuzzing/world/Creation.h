// Objects made as clients make them: through the DLL's own entry point.
#pragma once

#include "com/Classes.h"
#include "engine/Case.h"

#include <wrl/client.h>

namespace fuzzing {

Microsoft::WRL::ComPtr<IUnknown> CreateObject(REFCLSID classId);

// Of any creatable class.
const PublicClass& AnyCreatable(Case& one);
Microsoft::WRL::ComPtr<IUnknown> CreateAny(Case& one);

}  // namespace fuzzing
