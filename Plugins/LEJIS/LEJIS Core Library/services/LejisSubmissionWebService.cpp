#include "services/LejisSubmissionWebService.h"

#include "checking/LejisIncidentFormatter.h"
#include "checking/LejisIncidentValidator.h"
#include "deferred/FutureManager.h"
#include "foundation/Constants.h"
#include "foundation/DebugDump.h"
#include "foundation/NetworkErrors.h"
#include "platform/com/ComObject.h"
#include "platform/Conversions.h"
#include "platform/http/HttpRequest.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "platform/msxml/Node.h"
#include "services/EventNumbers.h"
#include "services/RequestEnvelope.h"
#include "services/SchemaUtils.h"
#include "services/ServiceErrors.h"
#include "services/SOAPEnvelope.h"
#include "services/SubmissionResponse.h"

using platform::ComError;

namespace lejis {

STDMETHODIMP LejisSubmissionWebService::SubmitIncident(ILejisIncidentIndexCard* incident, ICollection** result) {
    return Guard(result, [&] { return Submit(*platform::ImplementationOf<LejisIncidentIndexCard>(incident)); });
}

STDMETHODIMP LejisSubmissionWebService::DeleteIncident(ILejisIncidentIndexCard* incident) {
    return Guard([&] { Withdraw(*platform::ImplementationOf<LejisIncidentIndexCard>(incident)); });
}

platform::Ref<Collection> LejisSubmissionWebService::Submit(const LejisIncidentIndexCard& incident) {
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    const auto copy = formatter->Shape(incident);
    const auto validator = platform::Create<LejisIncidentValidator>();
    if (validator->FindErrors(*copy)) throw FatalError(platform::ToText(validator->Errors->Item(1)));
    const auto document = platform::Create<LejisSubmissionDocument>();
    document->Add(copy);
    SendAndJudge(*document);
    return formatter->Warnings;
}

void LejisSubmissionWebService::Withdraw(const LejisIncidentIndexCard& incident) {
    const auto bare = platform::Create<LejisIncidentIndexCard>();
    bare->ActivityID = incident.ActivityID;
    bare->OrganizationName = incident.OrganizationName;
    bare->OrganizationORI = incident.OrganizationORI;
    bare->SubmittedDate->Set(incident.SubmittedDate->Date());
    const auto document = platform::Create<LejisSubmissionDocument>();
    document->Add(bare);
    SendAndJudge(*document);
}

void LejisSubmissionWebService::SendAndJudge(const LejisSubmissionDocument& document) {
    int step = 1;
    try {
        DoSubmit(document, false);
        step = 2;
        ProcessResponse(request_);
    } catch (...) {
        throw SubmissionFailure(platform::CaughtError(), URL, step);
    }
}

void LejisSubmissionWebService::DoSubmit(const LejisSubmissionDocument& document, bool asynchronous) {
    int step = 1;
    platform::HttpRequest request;
    try {
        const msxml::Document envelope = WrapInEnvelope(msxml::Root(document.ToDocument()));
        step = 2;
        LejisUtils::SaveDebugDocument(envelope, L"LejisSubmitRequest.xml");
        step = 3;
        if (ValidateSchema) SchemaUtils::ValidateSchemaFromWSDL(envelope, URL + L"?wsdl");
        step = 4;
        request = platform::HttpRequest::Create();
        // A late report of the submission that this one replaces must not count as its own.
        request_.ClearReadyStateHandler();
        request_ = request;
        if (asynchronous) request.SetReadyStateHandler(Dispatch());
        step = 5;
        request.Open(L"POST", URL, asynchronous);
        step = 6;
        request.SetHeader(L"SOAPAction", Constants::kSubmitAction);
        request.SetHeader(L"Content-Type", L"text/xml;charset=utf-8");
        step = 7;
        request.Send(msxml::Markup(envelope));
        step = 8;
        if (!asynchronous) platform::WaitUntilComplete(request_);
    } catch (...) {
        const ComError error = platform::CaughtError();
        // No answer will come to separate the request from this object.
        request.ClearReadyStateHandler();
        throw ComError(error.Number(),
                       L"Error in DoSubmit (line " + std::to_wstring(step) + L"): " + error.Description(),
                       error.Source());
    }
}

void LejisSubmissionWebService::SubmitAsync(const LejisSubmissionDocument& document) {
    try {
        DoSubmit(document, true);
    } catch (...) {
        const SendingFailure failure = ToSendingFailure(platform::CaughtError(), URL);
        FireReason(failure.isNetworkError ? SubmissionEvents::kNetworkError : SubmissionEvents::kConfigurationError,
                   failure.message);
    }
}

STDMETHODIMP LejisSubmissionWebService::OnReadyStateChange() {
    return Guard([&] {
        // Nothing is processed inside of the request's callback: the answer is read a moment later.
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
            FireReason(SubmissionEvents::kServiceError, InternalServiceError(platform::CaughtError()));
        }
    });
}

void LejisSubmissionWebService::RaiseOutcome(const platform::Exchange& exchange) {
    const long status = exchange.Status();
    if (status == kHttpOk) {
        // Only a caller that waits gets the response code judged.
        Fire(SubmissionEvents::kSubmissionCompleted);
    } else if (LejisUtils::IsTransientStatus(status)) {
        FireReason(SubmissionEvents::kNetworkError, LejisUtils::GetNetworkErrorMessage(exchange));
    } else {
        RaiseServiceError(exchange);
    }
}

void LejisSubmissionWebService::RaiseServiceError(const platform::Exchange& exchange) {
    const msxml::Document& response = exchange.ResponseXml();
    if (!response) return;
    if (!msxml::Root(response)) return FireReason(SubmissionEvents::kServiceError, kUnexpectedResponse);
    LejisUtils::SaveDebugDocument(response, L"LejisSubmitResponse.xml");
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->ReadDocument(response);
    FireReason(SubmissionEvents::kServiceError, envelope->HasFault() ? envelope->TextOfFault() : L"Unknown error");
}

void LejisSubmissionWebService::FireReason(DISPID event, const std::wstring& reasonMessage) {
    Fire(event, {_variant_t(platform::ToBstr(reasonMessage))});
}

}  // namespace lejis
