// Is told how far an attempt has come, for the case that nobody waits for its end.
#pragma once

#include "submission/Task.h"

namespace lejis_client {

// Nobody waits for the attempt any more.
struct Abandoned {};

class AttemptWatch {
public:
    // What is known so far.
    virtual void Learn(const Attempt& known) = 0;
    // The service is about to be called: what is known from now on is that nobody knows. Raises Abandoned where the
    // attempt has been told as not sent already; the service must not be called then.
    virtual void BeginCall(const Attempt& known) = 0;

protected:
    ~AttemptWatch() = default;
};

}  // namespace lejis_client
