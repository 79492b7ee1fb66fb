#include "submission/CheckOperation.h"

namespace lejis_client {

using Microsoft::WRL::ComPtr;

Outcome CheckOperation::Run(ILejisIncidentIndexCard* incident) {
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

    Outcome outcome;
    outcome.result = hasErrors ? Result::Refused : Result::Done;
    outcome.errors = Texts(errors.Get());
    outcome.warnings = Texts(warnings.Get());
    return outcome;
}

}  // namespace lejis_client
