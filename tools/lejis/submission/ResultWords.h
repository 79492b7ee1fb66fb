#pragma once

#include "submission/OperationKind.h"

#include <string>

namespace lejis_client {

// How a result is called: "submitted", "not sent".
std::wstring WordOf(const OperationKind& operation, Result result);

}  // namespace lejis_client
