#include "submission/CheckOperation.h"

#include "submission/ShapedIncident.h"

namespace lejis_client {

Outcome CheckOperation::Run(ILejisIncidentIndexCard* incident, const std::function<void()>&) {
    const ShapedIncident shaped = Shape(incident);
    Outcome outcome;
    outcome.result = shaped.errors.empty() ? Result::Done : Result::Refused;
    outcome.errors = shaped.errors;
    outcome.warnings = shaped.warnings;
    return outcome;
}

}  // namespace lejis_client
