// Registers the classes of the module's type library, and unregisters them without a trace.
#pragma once

namespace platform {

// Both throw on failure. A second registration is harmless. The registration of the other bitness stays as it is.
void RegisterModule();
void UnregisterModule();

}  // namespace platform
