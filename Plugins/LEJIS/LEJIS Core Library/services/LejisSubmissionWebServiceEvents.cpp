// The submission that nobody waits for: its outcome is one event.
#include "services/LejisSubmissionWebService.h"

#include "deferred/InvokeLater.h"
#include "foundation/DebugDump.h"
#include "foundation/NetworkErrors.h"
#include "platform/msxml/Document.h"
#include "services/ServiceErrors.h"
#include "services/SOAPEnvelope.h"
#include "services/SubmissionResponse.h"

namespace lejis {
namespace {

// The events by their numbers in the interface.
constexpr DISPID kSubmissionCompleted = 1;
constexpr DISPID kConfigurationError = 2;
constexpr DISPID kNetworkError = 3;
constexpr DISPID kServiceError = 5;

constexpr long kOk = 200;

}  // namespace

void LejisSubmissionWebService::SubmitAsync(const LejisSubmissionDocument& document) {
    try {
        DoSubmit(document, true);
    } catch (...) {
        const SendingFailure failure = ToSendingFailure(platform::CaughtError(), URL);
        FireReason(failure.isNetworkError ? kNetworkError : kConfigurationError, failure.message);
    }
}

STDMETHODIMP LejisSubmissionWebService::OnReadyStateChange() {
    return Guard([&] {
        // Inside of the request's callback nothing is processed: the answer is read a moment later.
        if (request_ && request_.ReadyState() == platform::HttpRequest::kComplete) LejisUtils::InvokeLater(this);
    });
}

STDMETHODIMP LejisSubmissionWebService::IRunnable_Run() {
    return Guard([&] {
        try {
            // The request and this object hold each other until here.
            request_.ClearReadyStateHandler();
            RaiseOutcome(request_);
        } catch (...) {
            FireReason(kServiceError, InternalServiceError(platform::CaughtError()));
        }
    });
}

void LejisSubmissionWebService::RaiseOutcome(const platform::Exchange& exchange) {
    const long status = exchange.Status();
    if (status == kOk) {
        // The response code is looked at only where somebody waits for it.
        Fire(kSubmissionCompleted);
    } else if (LejisUtils::IsTransientStatus(status)) {
        FireReason(kNetworkError, LejisUtils::GetNetworkErrorMessage(exchange));
    } else {
        RaiseServiceError(exchange);
    }
}

void LejisSubmissionWebService::RaiseServiceError(const platform::Exchange& exchange) {
    const msxml::Document& response = exchange.ResponseXml();
    if (!response) return;
    if (!msxml::Root(response)) return FireReason(kServiceError, kUnexpectedResponse);
    LejisUtils::SaveDebugDocument(response, L"LejisSubmitResponse.xml");
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->ReadDocument(response);
    FireReason(kServiceError, envelope->HasFault() ? envelope->TextOfFault() : L"Unknown error");
}

void LejisSubmissionWebService::FireReason(DISPID event, const std::wstring& reasonMessage) {
    Fire(event, {_variant_t(platform::ToBstr(reasonMessage))});
}

}  // namespace lejis
