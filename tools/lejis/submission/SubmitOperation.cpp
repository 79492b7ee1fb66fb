#include "submission/SubmitOperation.h"

#include "library/LibraryError.h"
#include "submission/ShapedIncident.h"

namespace lejis_client {

SubmitOperation::SubmitOperation(const ServiceSettings& settings) : ServiceOperation(settings) {}

std::vector<std::wstring> SubmitOperation::Ask(ILejisIncidentIndexCard* incident) {
    Microsoft::WRL::ComPtr<ICollection> warnings;
    Check(Service().SubmitIncident(incident, &warnings));
    return Texts(warnings.Get());
}

// The service raises the first error as well.
void SubmitOperation::RequireFit(ILejisIncidentIndexCard* incident) const {
    const ShapedIncident shaped = Shape(incident);
    if (!shaped.errors.empty()) throw LibraryError{tvFatalError, shaped.errors.front()};
}

}  // namespace lejis_client
