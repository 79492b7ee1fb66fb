// Makes the classes of the module's type library known to the system, and takes them out without a trace.
#pragma once

namespace platform {

// Both raise on failure. Registering again is harmless; a registration of the other bitness is left as it is.
void RegisterModule();
void UnregisterModule();

}  // namespace platform
