#include "doctor/SchemaCheck.h"

#include "library/Members.h"
#include "library/SubmissionRequest.h"
#include "platform/ComError.h"
#include "platform/msxml/Document.h"
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

std::wstring SchemaFault(const msxml::Document& request, const std::wstring& wsdlUrl) {
    try {
        lejis::SchemaUtils::ValidateSchemaFromWSDL(request, wsdlUrl);
        return {};
    } catch (const platform::ComError& error) {
        return error.Description().empty() ? L"no reason was given" : error.Description();
    }
}

}  // namespace lejis_client
