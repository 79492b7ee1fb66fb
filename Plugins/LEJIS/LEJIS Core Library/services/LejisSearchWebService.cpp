#include "services/LejisSearchWebService.h"

#include "deferred/FutureManager.h"
#include "foundation/Constants.h"
#include "foundation/DebugDump.h"
#include "foundation/NetworkErrors.h"
#include "inquiry/LejisInquiryResponse.h"
#include "platform/com/ComObject.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "platform/msxml/Node.h"
#include "services/EventNumbers.h"
#include "services/PlainReading.h"
#include "services/RequestEnvelope.h"
#include "services/SchemaUtils.h"
#include "services/ServiceErrors.h"
#include "services/SOAPEnvelope.h"

using Microsoft::WRL::ComPtr;
using platform::Exchange;
using platform::HttpRequest;

namespace lejis {
namespace {

// "additioanal" and the blanks at the ends of lines are deliberate: clients know this text.
constexpr wchar_t kTooBroad[] =
    L"The LEJIS core server could not handle your search request. \r\n\r\n"
    L"A common cause of this is that you did not provide enough information in your search. \r\n"
    L"Try narrowing your search by entering additioanal search criteria. \r\n\r\n"
    L"Some LEJIS searches, such as a property search, require you to enter specific information\r\n"
    L"(for example, property searches require you to specify a property serial number in your search).";

// What MSXML's document of the answer holds; null when the request offers no document.
ComPtr<LejisInquiryResponse> ReadDocument(const Exchange& exchange) {
    const msxml::Document& answer = exchange.ResponseXml();
    if (!answer) return nullptr;
    LejisUtils::SaveDebugDocument(answer, L"LejisSearchResponse.xml");
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->ReadDocument(answer);
    auto response = platform::Create<LejisInquiryResponse>();
    response->ReadBelow(envelope->BodyElement());
    return response;
}

}  // namespace

STDMETHODIMP LejisSearchWebService::get_results(ICollection** result) {
    return platform::ReturnObject(results_, result);
}

STDMETHODIMP LejisSearchWebService::Search(ILejisSearchRequest* request) {
    return Guard([&] {
        try {
            Send(*platform::ImplementationOf<LejisSearchRequest>(request));
        } catch (...) {
            const SendingFailure failure = ToSendingFailure(platform::CaughtError(), URL);
            FireReason(failure.isNetworkError ? SearchEvents::kNetworkError : SearchEvents::kConfigurationError,
                       failure.message);
        }
    });
}

void LejisSearchWebService::Send(const LejisSearchRequest& request) {
    const msxml::Document envelope = WrapInEnvelope(msxml::Root(request.ToDocument()), Username);
    LejisUtils::SaveDebugDocument(envelope, L"LejisSearchRequest.xml");
    if (ValidateSchema) SchemaUtils::ValidateSchemaFromWSDL(envelope, URL + L"?wsdl");
    Post(envelope);
}

void LejisSearchWebService::Post(const msxml::Document& envelope) {
    HttpRequest request = HttpRequest::Create();
    // A late report of the search that this one replaces must not count as its own.
    request_.Abandon();
    request_ = request;
    isAwaited_ = true;
    try {
        request.SetReadyStateHandler(Dispatch());
        request.Open(L"POST", URL, true);
        request.SetHeader(L"SOAPAction", Constants::kSearchAction);
        request.SetHeader(L"Content-Type", L"text/xml;charset=utf-8");
        request.Send(msxml::Markup(envelope));
    } catch (...) {
        // No answer will come to separate the request from this object. A search that began while this one was sent
        // goes on.
        request.Abandon();
        if (request_ == request) isAwaited_ = false;
        throw;
    }
}

STDMETHODIMP LejisSearchWebService::OnReadyStateChange() {
    return Guard([&] {
        // Nothing is processed inside of the request's callback: the answer is read a moment later.
        if (request_ && request_.ReadyState() == HttpRequest::kComplete) LejisUtils::InvokeLater(this);
    });
}

STDMETHODIMP LejisSearchWebService::IRunnable_Run() {
    return Guard([&] {
        // A completion that is reported twice, or for a search that was replaced, is not a second answer.
        if (!isAwaited_ || request_.ReadyState() != HttpRequest::kComplete) return;
        isAwaited_ = false;
        try {
            // The request and this object hold each other until here.
            request_.ClearReadyStateHandler();
            RaiseOutcome(request_);
        } catch (...) {
            FireReason(SearchEvents::kServiceError, InternalServiceError(platform::CaughtError()));
        }
    });
}

void LejisSearchWebService::RaiseOutcome(const Exchange& exchange) {
    const long status = exchange.Status();
    if (status == kHttpOk) {
        RaiseFound(exchange);
    } else if (LejisUtils::IsTransientStatus(status)) {
        FireReason(SearchEvents::kNetworkError, LejisUtils::GetNetworkErrorMessage(exchange));
    } else if (status == kHttpForbidden) {
        FireReason(SearchEvents::kConfigurationError, exchange.StatusText());
    } else {
        RaiseServiceError(exchange);
    }
}

void LejisSearchWebService::RaiseFound(const Exchange& exchange) {
    auto response = TryPlainReading(exchange);
    if (!response) response = ReadDocument(exchange);
    if (!response) return;
    if (response->IncidentCount != 0 && response->IncidentIndexCards->Count() == 0) {
        return FireReason(SearchEvents::kServiceError, kTooBroad);
    }
    results_ = response->IncidentIndexCards;
    Fire(SearchEvents::kSearchCompleted, {_variant_t(results_->Dispatch())});
}

void LejisSearchWebService::RaiseServiceError(const Exchange& exchange) {
    const msxml::Document& answer = exchange.ResponseXml();
    if (!answer) throw platform::ObjectRequired();
    if (msxml::Root(answer)) {
        const auto envelope = platform::Create<SOAPEnvelope>();
        envelope->ReadDocument(answer);
        if (envelope->HasFault()) return FireReason(SearchEvents::kServiceError, envelope->TextOfFault());
    }
    FireReason(SearchEvents::kServiceError, kUnexpectedResponse);
}

void LejisSearchWebService::FireReason(DISPID event, const std::wstring& reasonMessage) {
    Fire(event, {_variant_t(platform::ToBstr(reasonMessage))});
}

}  // namespace lejis
