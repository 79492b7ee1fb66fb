#include "model/LejisSubmissionDocument.h"

#include "foundation/ElementWriter.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

namespace lejis {

STDMETHODIMP LejisSubmissionDocument::ToXmlElement(IDispatch* doc, IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(Write(msxml::DocumentFrom(doc))); });
}

STDMETHODIMP LejisSubmissionDocument::ToXmlDocument(IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(ToDocument()); });
}

void LejisSubmissionDocument::Add(const platform::Ref<LejisIncidentIndexCard>& incident) {
    IncidentIndexCards->AddObject(incident->Dispatch());
}

msxml::Element LejisSubmissionDocument::Write(const OutputDocument& document) const {
    ElementWriter submission(document, L"lejis:SubmitRmsIndex");
    msxml::AppendRoot(document, submission.Element());
    IncidentIndexCards->ForEach<LejisIncidentIndexCard>(
        [&](const auto& incident) { submission.Child(incident.Write(document)); });
    submission.Child(ContributingSystem->Write(document));
    return submission.Element();
}

msxml::Document LejisSubmissionDocument::ToDocument() const {
    const OutputDocument document = OutputDocument::Create();
    Write(document);
    return document.Get();
}

}  // namespace lejis
