#include "submission/DeleteOperation.h"

namespace lejis_client {

DeleteOperation::DeleteOperation(const ServiceSettings& settings)
    : ServiceOperation(settings,
                       L"LEJIS may have it still or not: withdraw it again, LEJIS knows an incident by agency and "
                       L"number, or look it up.") {}

std::vector<std::wstring> DeleteOperation::Ask(ILejisIncidentIndexCard* incident) {
    Check(Service().DeleteIncident(incident));
    return {};
}

}  // namespace lejis_client
