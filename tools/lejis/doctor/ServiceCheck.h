// Is there a service at an address, is it the one that belongs there, for the library's LEJIS host, and do requests fit
// its description?
#pragma once

#include "doctor/Diagnosis.h"
#include "doctor/Service.h"

namespace lejis_client {

// `lejisHost` is that of the library in use, where it is known.
void CheckService(ServiceKind kind, const std::wstring& url, const std::optional<std::wstring>& lejisHost,
                  Diagnosis& diagnosis);

}  // namespace lejis_client
