// Checks that every class of a library can be created. When this program cannot load the library, the check looks the
// classes up in the registry instead.
#pragma once

#include "doctor/Finding.h"
#include "library/InstalledLibrary.h"

namespace lejis_client {

// The subject of the finding.
const wchar_t* ClassesNameOf(Bitness bitness);

// `file`: the library, which need not be registered when it is of this program's own bitness.
Finding CheckClasses(Bitness bitness, const std::wstring& file);

}  // namespace lejis_client
