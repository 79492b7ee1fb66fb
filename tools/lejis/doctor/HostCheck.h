// Is the library made for the LEJIS host of a service? The host stands in every namespace and SOAP action, so a library
// that is made for another one has all its requests refused.
#pragma once

#include "doctor/Finding.h"
#include "doctor/Service.h"
#include "doctor/ServiceDescription.h"

namespace lejis_client {

Finding CheckHost(const Service& service, const ServiceDescription& description, const std::wstring& lejisHost);

}  // namespace lejis_client
