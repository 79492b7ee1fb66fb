// Is there a service at an address, does it describe itself, and do requests fit its description?
#pragma once

#include "doctor/Finding.h"

namespace lejis_client {

enum class ServiceKind { kSubmission, kSearch };

Findings CheckService(ServiceKind kind, const std::wstring& url);

}  // namespace lejis_client
