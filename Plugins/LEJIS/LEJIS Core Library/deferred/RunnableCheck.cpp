#include "deferred/RunnableCheck.h"

#include "platform/host/SuiteHost.h"

namespace lejis {

void RequireRunnable(IRunnable* runnable) {
    if (!runnable) throw platform::host::InvalidArgument(L"runnable cannot be Nothing");
}

}  // namespace lejis
