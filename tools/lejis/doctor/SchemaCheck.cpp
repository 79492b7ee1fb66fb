#include "doctor/SchemaCheck.h"

#include "doctor/RegistrationCheck.h"
#include "foundation/LejisUtils.h"
#include "library/LibraryError.h"
#include "library/Members.h"
#include "library/NotRegistered.h"
#include "library/SubmissionRequest.h"
#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "services/SchemaUtils.h"
#include "services/SearchEnvelope.h"
#include "text/Day.h"

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

ComPtr<ILejisIncidentIndexCard> SampleIncident() {
    auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    Check(incident->put_OrganizationORI(_bstr_t(L"PA0000000")));
    Check(incident->put_ActivityID(_bstr_t(L"0")));
    const auto submitted = Part(incident.Get(), &ILejisIncidentIndexCard::get_SubmittedDate);
    Check(submitted->put_Value(_variant_t(*ParseDay(L"2000-01-01"), VT_DATE)));
    return incident;
}

// The request with an element in it that no request has.
msxml::Document Spoilt(const msxml::Document& request) {
    lejis::LejisUtils::SetSelectionNamespaces(request);
    const msxml::Node payload = msxml::SelectNode(msxml::Root(request), L"soap:Body/*");
    const platform::OutText space = msxml::NamespaceUri(payload);
    msxml::Append(payload, msxml::CreateElement(request, L"doctor:NotOfAnyRequest", space.View()));
    return request;
}

// What is wrong; empty when nothing is.
std::wstring FaultOf(const msxml::Document& request, const std::wstring& wsdlUrl) {
    try {
        lejis::SchemaUtils::ValidateSchemaFromWSDL(request, wsdlUrl);
        return {};
    } catch (const platform::ComError& error) {
        return error.Description().empty() ? L"no reason was given" : error.Description();
    }
}

}  // namespace

msxml::Document SampleSubmission() { return SubmissionRequest(SampleIncident().Get()); }

msxml::Document SampleSearch() {
    const auto request = Create<LejisSearchRequest, ILejisSearchRequest>();
    const auto person = Part(request.Get(), &ILejisSearchRequest::get_personArguments);
    Check(person->put_SurName(_bstr_t(L"DOE")));
    ComPtr<IDispatch> document;
    Check(request->ToXmlDocument(&document));
    return lejis::WrapInSearchEnvelope(msxml::Root(msxml::DocumentFrom(document.Get())), L"doctor");
}

Finding CheckSchemas(const Service& service, const std::wstring& wsdlUrl) {
    try {
        const std::wstring fault = FaultOf(service.sample(), wsdlUrl);
        if (!fault.empty()) {
            return {service.schemas, Health::kWarning, fault,
                    L"Leave ValidateSchema off, and see that the LEJIS Interface publishes all its schemas."};
        }
        if (FaultOf(Spoilt(service.sample()), wsdlUrl).empty()) {
            return {service.schemas, Health::kWarning,
                    L"a spoilt request passes them too: they do not describe requests",
                    L"Do not rely on ValidateSchema, and see that the LEJIS Interface publishes all its schemas."};
        }
        return {
            service.schemas, Health::kOk, L"a sample request passes them, a spoilt one does not; nothing was sent", {}};
    } catch (const NotRegistered&) {
        return Unseen(service.schemas);
    } catch (const LibraryError& error) {
        return {service.schemas, Health::kFailed, error.description, InstallAgain(kOwnBitness)};
    }
}

Finding LateSchemas(const Service& service) {
    return {service.schemas,
            Health::kWarning,
            {},
            L"Leave ValidateSchema off: a request would wait for the schemas without an end."};
}

}  // namespace lejis_client
