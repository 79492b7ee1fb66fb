#pragma once

#include "foundation/NullableInteger.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// A vehicle of an incident as card:RMSVehicleIndexCards.
class LejisVehicleIndexCard final : public platform::ComObject<::LejisVehicleIndexCard, ILejisVehicleIndexCard> {
public:
    TEXT_PROPERTY(Make)
    TEXT_PROPERTY(Model)
    TEXT_PROPERTY(Style)
    TEXT_PROPERTY(Color)
    TEXT_PROPERTY(LicensePlate)
    TEXT_PROPERTY(LicensePlateState)
    TEXT_PROPERTY(VIN)
    BOOLEAN_PROPERTY(CautionIndicator)
    TEXT_PROPERTY(CaveatText)
    OBJECT_PROPERTY(NullableInteger, Year)
    XML_METHODS()

private:
    void Reset();
};

}  // namespace lejis
