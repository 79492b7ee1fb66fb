#include "services/SubmissionResponse.h"

#include "foundation/DebugDump.h"
#include "foundation/NetworkErrors.h"
#include "platform/com/Guard.h"
#include "platform/Conversions.h"
#include "platform/msxml/Node.h"
#include "services/ServiceErrors.h"
#include "services/SOAPEnvelope.h"

using platform::ComError;
using platform::Exchange;

namespace lejis {
namespace {

constexpr short kAccepted = 0;
constexpr short kCoreOffline = 100;

bool IsSoapResponse(const msxml::Document& response) {
    try {
        if (!response) return false;
        platform::Create<SOAPEnvelope>()->ReadDocument(response);
        return true;
    } catch (const ComError&) {
        return false;
    }
}

// The number that the text begins with, before its first blank. A text without such a number counts as 0, so that a
// bare word of acknowledgement is a success; this is deliberate. An empty text throws.
short ResponseCode(const std::wstring& text) {
    if (text.empty()) throw ComError(DISP_E_BADINDEX, L"Subscript out of range");
    const std::wstring piece = text.substr(0, text.find(L' '));
    const auto code = platform::RoundTo<short>(_variant_t(platform::LeadingDecimal(piece)));
    if (!code) throw platform::Overflow();
    return *code;
}

void RequireSoap(const Exchange& exchange, long status) {
    if (IsSoapResponse(exchange.ResponseXml())) return;
    throw TransientError(L"The LEJIS core server appears to be partially offline. It returned a " +
                         std::to_wstring(status) + L" HTTP status code but did not return a valid SOAP XML response.");
}

[[noreturn]] void RaiseFault(const SOAPEnvelope& envelope) {
    if (envelope.HasFault()) throw FatalError(envelope.TextOfFault());
    throw TransientError(kUnexpectedResponse);
}

std::wstring ResponseText(const SOAPEnvelope& envelope) {
    const msxml::Node response = msxml::SelectNode(envelope.BodyElement(), L"lejis:submissionResponse");
    if (!response) throw TransientError(L"The server did not return a submissionResponse code.");
    return std::wstring(msxml::Text(response));
}

void RequireAccepted(const std::wstring& text) {
    switch (ResponseCode(text)) {
        case kAccepted:
            return;
        case kCoreOffline:
            throw TransientError(L"LEJIS server is up, but LEJIS core system is offline.");
        default:
            throw TransientError(L"Unexpected error returned from LEJIS: " + text);
    }
}

}  // namespace

void ProcessResponse(const Exchange& exchange) {
    int step = 1;
    try {
        const long status = exchange.Status();
        if (LejisUtils::IsTransientStatus(status)) throw TransientError(LejisUtils::GetNetworkErrorMessage(exchange));
        step = 2;
        if (status == kHttpForbidden) throw FatalError(exchange.StatusText());
        step = 3;
        RequireSoap(exchange, status);
        step = 4;
        const auto envelope = platform::Create<SOAPEnvelope>();
        LejisUtils::SaveDebugDocument(exchange.ResponseXml(), L"LejisSubmitResponse.xml");
        envelope->ReadDocument(exchange.ResponseXml());
        step = 5;
        if (status != kHttpOk) RaiseFault(*envelope);
        step = 6;
        const std::wstring text = ResponseText(*envelope);
        step = 7;
        RequireAccepted(text);
    } catch (...) {
        const ComError error = platform::CaughtError();
        // The errors that are thrown above on purpose leave unchanged.
        if (IsSubmissionError(error)) throw error;
        throw FatalError(InternalServiceError(error) + InLine(step));
    }
}

}  // namespace lejis
