// Do requests of the library pass the schemas that a service publishes, and would they fail if they were wrong?
#pragma once

#include "doctor/Finding.h"
#include "doctor/Service.h"

namespace lejis_client {

Finding CheckSchemas(const Service& service, const std::wstring& wsdlUrl);

// When the schemas have not come in time.
Finding LateSchemas(const Service& service);

}  // namespace lejis_client
