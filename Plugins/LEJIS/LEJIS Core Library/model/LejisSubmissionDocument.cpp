#include "model/LejisSubmissionDocument.h"

#include "foundation/ElementWriter.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

namespace lejis {

STDMETHODIMP LejisSubmissionDocument::ToXmlElement(IDispatch* doc, IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(ToXmlElement(msxml::DocumentFrom(doc))); });
}

STDMETHODIMP LejisSubmissionDocument::ToXmlDocument(IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(ToXmlDocument()); });
}

void LejisSubmissionDocument::Add(const Microsoft::WRL::ComPtr<LejisIncidentIndexCard>& incident) {
    IncidentIndexCards->AddObject(incident->Dispatch());
}

msxml::Element LejisSubmissionDocument::ToXmlElement(const OutputDocument& document) const {
    ElementWriter submission(document, L"lejis:SubmitRmsIndex");
    msxml::AppendRoot(document, submission.Element());
    IncidentIndexCards->ForEach<LejisIncidentIndexCard>(
        [&](const auto& incident) { submission.Child(incident.ToXmlElement(document)); });
    submission.Child(ContributingSystem->ToXmlElement(document));
    return submission.Element();
}

msxml::Document LejisSubmissionDocument::ToXmlDocument() const {
    const OutputDocument document = OutputDocument::Create();
    ToXmlElement(document);
    return document;
}

}  // namespace lejis
