// Objects made as clients make them: through the DLL's own entry point.
#pragma once

#include "com/Classes.h"
#include "engine/Case.h"

#include <wrl/client.h>

namespace fuzzing {

Microsoft::WRL::ComPtr<IUnknown> CreateObject(REFCLSID classId);

// Picks any creatable class.
const PublicClass& AnyCreatable(Case& input);
Microsoft::WRL::ComPtr<IUnknown> CreateAny(Case& input);

}  // namespace fuzzing
