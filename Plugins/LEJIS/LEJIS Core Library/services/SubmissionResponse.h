#pragma once

#include "platform/http/Exchange.h"

namespace lejis {

// Judges the answer to a submission: returns when LEJIS has taken the submission, and throws one of the two submission
// errors otherwise.
void ProcessResponse(const platform::Exchange& exchange);

}  // namespace lejis
