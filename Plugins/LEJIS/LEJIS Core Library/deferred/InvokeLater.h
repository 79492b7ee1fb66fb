#pragma once

struct IRunnable;

namespace lejis::LejisUtils {

// Runs the runnable a moment later on this thread, from its message loop, and keeps it alive until then.
void InvokeLater(IRunnable* runnable);

}  // namespace lejis::LejisUtils
