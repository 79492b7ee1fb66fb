#include "platform/host/HostComponents.h"

#include "platform/host/SuiteEnvironment.h"
#include "platform/host/SuiteServices.h"

namespace platform::host {

void ReleaseComponents() noexcept {
    ReleaseServices();
    ReleaseEnvironment();
}

}  // namespace platform::host
