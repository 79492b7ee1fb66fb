#pragma once

struct IRunnable;

namespace lejis {

// Raises "runnable cannot be Nothing" without a runnable.
void RequireRunnable(IRunnable* runnable);

}  // namespace lejis
