#pragma once

#include "foundation/NullableDate.h"
#include "model/LejisPersonIndexCard.h"
#include "model/LejisPropertyIndexCard.h"
#include "model/LejisStreetAddress.h"
#include "model/LejisVehicleIndexCard.h"
#include "model/XmlMethods.h"
#include "platform/com/Collection.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

using platform::Collection;

// An incident as lejis:RMSIncidentIndexCard. It stores and writes any values: the formatter shapes them, and the
// validator checks the required ones.
class LejisIncidentIndexCard final : public platform::ComObject<::LejisIncidentIndexCard, ILejisIncidentIndexCard> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(OrganizationName)
    TEXT_FIELD(OrganizationORI)
    TEXT_FIELD(ActivityID)
    TEXT_FIELD(CaveatText)
    TEXT_FIELD(ChargeNCICCode)
    TEXT_FIELD(ChargeDescriptionText)
    BOOLEAN_PROPERTY(CautionIndicator)
    OBJECT_PROPERTY(NullableDate, SubmittedDate)
    OBJECT_PROPERTY(NullableDate, ActivityDateTime)
    OBJECT_PROPERTY(LejisStreetAddress, Location)
    OBJECT_PROPERTY(Collection, PersonIndexCards)
    OBJECT_PROPERTY(Collection, VehicleIndexCards)
    OBJECT_PROPERTY(Collection, PropertyIndexCards)
    XML_METHODS()

    [[nodiscard]] STDMETHODIMP HasCaution(VARIANT_BOOL* result) override;
    bool NeedsCaution() const;

private:
    void ReadIdentifiers(const ElementReader& incident);
    void ReadActivityDateTime(const ElementReader& incident);
    void ReadCards(const ElementReader& incident);
};

}  // namespace lejis
