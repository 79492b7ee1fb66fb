// Does a service describe itself, and is it the one that belongs to its address?
#pragma once

#include "doctor/Finding.h"
#include "doctor/Service.h"
#include "doctor/ServiceDescription.h"
#include "doctor/WebPage.h"

namespace lejis_client {

Finding CheckDescription(ServiceKind kind, const std::wstring& wsdlUrl, const WebPage& page,
                         ServiceDescription& description);

}  // namespace lejis_client
