#pragma once

#include "platform/http/Exchange.h"

namespace lejis {

// Judges the answer to a submission: returns when LEJIS has taken it, and raises one of the two submission errors
// otherwise.
void ProcessResponse(const platform::Exchange& exchange);

}  // namespace lejis
