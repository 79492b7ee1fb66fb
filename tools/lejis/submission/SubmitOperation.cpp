#include "submission/SubmitOperation.h"

namespace lejis_client {

SubmitOperation::SubmitOperation(const ServiceSettings& settings)
    : ServiceOperation(
          settings,
          L"LEJIS may have it or not: send it again, LEJIS knows an incident by agency and number, or look "
          L"it up.") {}

std::vector<std::wstring> SubmitOperation::Ask(ILejisIncidentIndexCard* incident) {
    Microsoft::WRL::ComPtr<ICollection> warnings;
    Check(Service().SubmitIncident(incident, &warnings));
    return Texts(warnings.Get());
}

}  // namespace lejis_client
