#pragma once

#include "model/LejisIncidentIndexCard.h"
#include "model/LejisSubmissionDocument.h"
#include "platform/com/EventSource.h"
#include "platform/com/Properties.h"
#include "platform/http/Exchange.h"
#include "platform/http/HttpRequest.h"

#include <TVLejisCore.h>

namespace lejis {

// Sends incidents to the LEJIS index and turns every outcome into success, an error that says whether trying again can
// help, or, for a submission that nobody waits for, an event.
class LejisSubmissionWebService final
    : public platform::EventSource<::LejisSubmissionWebService, ILejisSubmissionWebService,
                                   _LejisSubmissionWebServiceEvents, IRunnable> {
public:
    BOOLEAN_PROPERTY(ValidateSchema)
    TEXT_PROPERTY(URL)
    // The client's value is kept and applied nowhere: the request has no time-outs, and the wait for it has no limit.
    LONG_PROPERTY(Timeout)
    [[nodiscard]] STDMETHODIMP SubmitIncident(ILejisIncidentIndexCard* incident, ICollection** result) override;
    [[nodiscard]] STDMETHODIMP DeleteIncident(ILejisIncidentIndexCard* incident) override;
    STDMETHODIMP OnReadyStateChange() override;
    STDMETHODIMP Run() override { return IRunnable_Run(); }

    // Shapes, checks and sends the incident; returns the warnings.
    platform::Ref<Collection> Submit(const LejisIncidentIndexCard& incident);
    // Sends the incident's identifiers alone, which withdraws it.
    void Withdraw(const LejisIncidentIndexCard& incident);

    // Sends without waiting. Every outcome, failures of the sending included, is an event.
    void SubmitAsync(const LejisSubmissionDocument& document);

private:
    STDMETHODIMP IRunnable_Run();

    void SendAndJudge(const LejisSubmissionDocument& document);
    void DoSubmit(const LejisSubmissionDocument& document, bool asynchronous);
    void RaiseOutcome(const platform::Exchange& exchange);
    void RaiseServiceError(const platform::Exchange& exchange);
    void FireReason(DISPID event, const std::wstring& reasonMessage);

    // The request of the last send, kept until the next one.
    platform::HttpRequest request_;
};

}  // namespace lejis
