#include "submission/ServiceOperation.h"

#include "library/LibraryError.h"
#include "submission/MessageOutcome.h"

namespace lejis_client {
namespace {

constexpr wchar_t kWait[] = L"Nothing reached LEJIS. Trying again later can help; the incident is not at fault.";
constexpr wchar_t kMend[] = L"Trying again does not help until this is put right.";
constexpr wchar_t kMendTheRoad[] = L"Nothing reached LEJIS. Trying again does not help until this is put right.";

}  // namespace

ServiceOperation::ServiceOperation(const ServiceSettings& settings, const wchar_t* adviceOnUnknown)
    : service_(Create<LejisSubmissionWebService, ILejisSubmissionWebService>()),
      adviceOnUnknown_(adviceOnUnknown),
      probe_(settings.url) {
    Check(service_->put_URL(_bstr_t(settings.url.c_str())));
    Check(service_->put_ValidateSchema(settings.validateSchema ? VARIANT_TRUE : VARIANT_FALSE));
}

Outcome ServiceOperation::Run(ILejisIncidentIndexCard* incident) {
    const bool mayHaveSent = probe_.MaySend();
    try {
        Outcome outcome;
        outcome.warnings = Ask(incident);
        return outcome;
    } catch (const LibraryError& error) {
        const Outcome outcome = OutcomeOf(error, mayHaveSent);
        if (outcome.canTryAgain) probe_.Doubt();
        return Advised(outcome);
    }
}

Outcome ServiceOperation::Advised(Outcome outcome) const {
    if (outcome.result == Result::Unknown) {
        outcome.advice = adviceOnUnknown_;
    } else if (outcome.result == Result::NotSent) {
        outcome.advice = outcome.canTryAgain ? kWait : kMendTheRoad;
    } else {
        outcome.advice = kMend;
    }
    return outcome;
}

}  // namespace lejis_client
