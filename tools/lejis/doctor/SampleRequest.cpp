#include "doctor/SampleRequest.h"

#include "library/Members.h"
#include "library/SubmissionRequest.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "services/RequestEnvelope.h"
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
    return lejis::WrapInEnvelope(msxml::Root(msxml::DocumentFrom(document.Get())), L"doctor");
}

}  // namespace lejis_client
