// Waiting for a request without blocking the host.
#pragma once

#include "platform/http/HttpRequest.h"

namespace platform {

// Returns when the request is complete, calling the host's yield operation once after each look that finds it is not.
// `request` may become another one meanwhile: it is looked at anew each time.
// There is no time limit: the way out of a wait is a yield operation that raises.
void WaitUntilComplete(const HttpRequest& request);

}  // namespace platform
