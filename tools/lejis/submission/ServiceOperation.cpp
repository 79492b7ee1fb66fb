#include "submission/ServiceOperation.h"

#include "library/LibraryError.h"
#include "submission/MessageOutcome.h"

namespace lejis_client {

ServiceOperation::ServiceOperation(const ServiceSettings& settings)
    : service_(Create<LejisSubmissionWebService, ILejisSubmissionWebService>()), probe_(settings.url) {
    Check(service_->put_URL(_bstr_t(settings.url.c_str())));
    Check(service_->put_ValidateSchema(settings.validateSchema ? VARIANT_TRUE : VARIANT_FALSE));
}

Outcome ServiceOperation::Run(ILejisIncidentIndexCard* incident, const std::function<void()>& beforeSending) {
    const Reachability reachability = probe_.Look();
    try {
        if (reachability == Reachability::Unreachable) {
            RequireFit(incident);
            throw ServiceIsDown();
        }
        beforeSending();
        Outcome outcome;
        outcome.warnings = Ask(incident);
        return outcome;
    } catch (const LibraryError& error) {
        const Outcome outcome = OutcomeOf(error, reachability);
        if (outcome.canTryAgain) probe_.Doubt();
        return outcome;
    }
}

}  // namespace lejis_client
