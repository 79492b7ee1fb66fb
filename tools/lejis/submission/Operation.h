// What is done with an incident: checked, submitted or withdrawn. An operation belongs to the thread that has made it.
#pragma once

#include "library/Library.h"
#include "submission/Outcome.h"

#include <functional>
#include <memory>

namespace lejis_client {

class Operation {
public:
    Operation() = default;
    virtual ~Operation() = default;
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

    // Calls `beforeSending` before anything can leave the workstation. Raises a LibraryError where the library fails
    // before it is asked for the operation itself.
    virtual Outcome Run(ILejisIncidentIndexCard* incident, const std::function<void()>& beforeSending) = 0;
};

}  // namespace lejis_client
