// What is done with an incident: checked, submitted or withdrawn. An operation belongs to the thread that has made it.
#pragma once

#include "library/Library.h"
#include "submission/Outcome.h"

#include <memory>

namespace lejis_client {

class Operation {
public:
    Operation() = default;
    virtual ~Operation() = default;
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

    // Raises a LibraryError where the library fails before it is asked for the operation itself.
    virtual Outcome Run(ILejisIncidentIndexCard* incident) = 0;
};

}  // namespace lejis_client
