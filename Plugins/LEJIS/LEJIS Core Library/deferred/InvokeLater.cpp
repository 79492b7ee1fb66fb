#include "deferred/InvokeLater.h"

#include "deferred/SharedManager.h"
#include "platform/thread/ThreadState.h"

namespace lejis::LejisUtils {

void InvokeLater(IRunnable* runnable) { platform::thread::ThisThreads<SharedManager>().Get().RunLater(runnable); }

}  // namespace lejis::LejisUtils
