#pragma once

#include "foundation/NullableNumber.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// A vehicle of an incident as card:RMSVehicleIndexCards.
class LejisVehicleIndexCard final : public platform::ComObject<::LejisVehicleIndexCard, ILejisVehicleIndexCard> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(Make)
    TEXT_FIELD(Model)
    TEXT_FIELD(Style)
    TEXT_FIELD(Color)
    TEXT_FIELD(LicensePlate)
    TEXT_FIELD(LicensePlateState)
    TEXT_FIELD(VIN)
    TEXT_FIELD(CaveatText)
    BOOLEAN_PROPERTY(CautionIndicator)
    OBJECT_PROPERTY(NullableInteger, Year)
    XML_METHODS()

private:
    void Reset();
};

}  // namespace lejis
