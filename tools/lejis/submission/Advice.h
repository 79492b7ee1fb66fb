#pragma once

#include "submission/OperationKind.h"

#include <string>

namespace lejis_client {

// What to do about an incident that did not go through; empty where that goes without saying.
std::wstring AdviceOn(const OperationKind& operation, const Outcome& outcome);

}  // namespace lejis_client
