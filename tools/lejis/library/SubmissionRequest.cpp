#include "library/SubmissionRequest.h"

#include "library/Members.h"
#include "platform/msxml/Document.h"
#include "services/RequestEnvelope.h"

namespace lejis_client {

msxml::Document SubmissionRequest(ILejisIncidentIndexCard* incident) {
    const auto submission = Create<LejisSubmissionDocument, ILejisSubmissionDocument>();
    const auto cards = Part(submission.Get(), &ILejisSubmissionDocument::get_IncidentIndexCards);
    Check(cards->Add(_variant_t(static_cast<IDispatch*>(incident))));
    Microsoft::WRL::ComPtr<IDispatch> document;
    Check(submission->ToXmlDocument(&document));
    return lejis::WrapInEnvelope(msxml::Root(msxml::DocumentFrom(document.Get())));
}

}  // namespace lejis_client
