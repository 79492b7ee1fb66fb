// Where the host suite keeps things.
#pragma once

#include <string>

namespace platform::host {

// The folder for debug dumps. The built-in one, below the user's local application data, is created here.
std::wstring DiagnosticsFolder();

}  // namespace platform::host
