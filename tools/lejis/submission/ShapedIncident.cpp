#include "submission/ShapedIncident.h"

namespace lejis_client {

using Microsoft::WRL::ComPtr;

ShapedIncident Shape(ILejisIncidentIndexCard* incident) {
    const auto formatter = Create<LejisIncidentFormatter, ILejisIncidentFormatter>();
    ComPtr<ILejisIncidentIndexCard> shaped;
    Check(formatter->Format(incident, &shaped));
    ComPtr<ICollection> warnings;
    Check(formatter->get_Warnings(&warnings));

    const auto validator = Create<LejisIncidentValidator, ILejisIncidentValidator>();
    VARIANT_BOOL hasErrors = VARIANT_FALSE;
    Check(validator->Validate(shaped.Get(), &hasErrors));
    ComPtr<ICollection> errors;
    Check(validator->get_Errors(&errors));
    return {shaped, Texts(warnings.Get()), Texts(errors.Get())};
}

}  // namespace lejis_client
