#pragma once

#include "model/LejisIncidentIndexCard.h"
#include "platform/com/Collection.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// Shapes a copy of an incident to the form that LEJIS takes, and warns of each change. It leaves what it cannot mend to
// the validator.
class LejisIncidentFormatter final : public platform::ComObject<::LejisIncidentFormatter, ILejisIncidentFormatter> {
public:
    OBJECT_PROPERTY(Collection, Warnings)
    STDMETHODIMP get_HasWarnings(VARIANT_BOOL* result) override;
    [[nodiscard]] STDMETHODIMP Format(ILejisIncidentIndexCard* incident, ILejisIncidentIndexCard** result) override;

    platform::Ref<LejisIncidentIndexCard> Shape(const LejisIncidentIndexCard& incident);

private:
    void StartList() { Warnings = platform::Create<Collection>(); }
    platform::Ref<LejisIncidentIndexCard> ShapedCopy(const LejisIncidentIndexCard& incident);
};

}  // namespace lejis
