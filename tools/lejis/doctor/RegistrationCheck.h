// Is there a library for the programs of one bitness, and is it one that they can load?
#pragma once

#include "doctor/Finding.h"
#include "library/InstalledLibrary.h"

namespace lejis_client {

// "32-bit".
std::wstring Bits(Bitness bitness);

// The subject of the finding.
const wchar_t* LibraryNameOf(Bitness bitness);

// The cure for most failures.
std::wstring InstallAgain(Bitness bitness);

Finding CheckRegistration(Bitness bitness);

}  // namespace lejis_client
