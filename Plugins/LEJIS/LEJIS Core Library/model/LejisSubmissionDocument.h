#pragma once

#include "model/LejisContributingSystem.h"
#include "model/LejisIncidentIndexCard.h"
#include "platform/com/Collection.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The payload of a submission, as lejis:SubmitRmsIndex: incidents, and after them the system that contributes them.
class LejisSubmissionDocument final : public platform::ComObject<::LejisSubmissionDocument, ILejisSubmissionDocument> {
public:
    OBJECT_PROPERTY(Collection, IncidentIndexCards)
    OBJECT_PROPERTY(LejisContributingSystem, ContributingSystem)
    [[nodiscard]] STDMETHODIMP ToXmlElement(IDispatch* doc, IDispatch** result) override;
    [[nodiscard]] STDMETHODIMP ToXmlDocument(IDispatch** result) override;

    void Add(const platform::Ref<LejisIncidentIndexCard>& incident);

    // The new element becomes the root of the document. Throws when the document has a root.
    msxml::Element Write(const OutputDocument& document) const;
    msxml::Document ToDocument() const;
};

}  // namespace lejis
