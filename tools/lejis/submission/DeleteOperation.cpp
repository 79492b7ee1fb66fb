#include "submission/DeleteOperation.h"

namespace lejis_client {

DeleteOperation::DeleteOperation(const ServiceSettings& settings) : ServiceOperation(settings) {}

std::vector<std::wstring> DeleteOperation::Ask(ILejisIncidentIndexCard* incident) {
    Check(Service().DeleteIncident(incident));
    return {};
}

// The service sends every withdrawal unchecked.
void DeleteOperation::RequireFit(ILejisIncidentIndexCard*) const {}

}  // namespace lejis_client
