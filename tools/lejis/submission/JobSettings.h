#pragma once

#include "submission/NamedIncident.h"
#include "submission/OperationKind.h"

namespace lejis_client {

// What is done with each incident, and where.
struct JobSettings {
    const OperationKind* operation = nullptr;
    ServiceSettings service;
    // The incident, where no file holds it.
    IncidentName named;
};

}  // namespace lejis_client
