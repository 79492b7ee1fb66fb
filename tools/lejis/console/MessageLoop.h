// A thread that waits, and serves its windows meanwhile: COM and the library have some.
#pragma once

#include <windows.h>

namespace lejis_client {

void DispatchMessages();

// False when the time was over first.
bool AwaitEvent(HANDLE event, DWORD milliseconds);

}  // namespace lejis_client
