#pragma once

namespace platform::host {

// Lets go of every host component that this thread has used; the next use makes them anew. Called when the library may
// be unloaded, while COM is still there.
void ReleaseComponents() noexcept;

}  // namespace platform::host
