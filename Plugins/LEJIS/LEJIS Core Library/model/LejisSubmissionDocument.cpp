#include "model/LejisSubmissionDocument.h"

#include "foundation/ElementWriter.h"
#include "platform/ComError.h"
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

msxml::Element LejisSubmissionDocument::ToXmlElement(const msxml::Document& document) const {
    // Checked here because not every MSXML refuses a second root.
    if (msxml::Root(document))
        throw platform::ComError(E_FAIL, L"Only one top level element is allowed in an XML document.");
    ElementWriter submission(document, L"lejis:SubmitRmsIndex");
    msxml::Append(document, submission.Element());
    for (const auto& incident : IncidentIndexCards->ItemsAs<LejisIncidentIndexCard>()) {
        submission.Child(incident->ToXmlElement(document));
    }
    submission.Child(ContributingSystem->ToXmlElement(document));
    return submission.Element();
}

msxml::Document LejisSubmissionDocument::ToXmlDocument() const {
    const msxml::Document document = msxml::CreateDocument();
    ToXmlElement(document);
    return document;
}

}  // namespace lejis
