// Records how far an attempt has come, in case it is abandoned before it ends.
#pragma once

#include "submission/Task.h"

namespace lejis_client {

// Nobody waits for the attempt any more.
struct Abandoned {};

class AttemptWatch {
public:
    // What is known so far.
    virtual void Learn(const Attempt& known) = 0;
    // Call this right before the service: from then on the outcome is unknown. Raises Abandoned when the attempt has
    // already been reported as not sent; the service must not be called then.
    virtual void BeginCall(const Attempt& known) = 0;

protected:
    ~AttemptWatch() = default;
};

}  // namespace lejis_client
