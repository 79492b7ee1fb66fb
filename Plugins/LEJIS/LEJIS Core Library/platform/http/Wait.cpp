#include "platform/http/Wait.h"

#include "platform/host/SuiteHost.h"

namespace platform {

void WaitUntilComplete(const HttpRequest& request) {
    while (request.ReadyState() != HttpRequest::kComplete) host::YieldToHost();
}

}  // namespace platform
