#pragma once

#include "foundation/NullableInteger.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"
#include "platform/com/TextProperties.h"

#include <TVLejisCore.h>

namespace lejis {

#define VEHICLE_TEXTS(EACH) \
    EACH(Make)              \
    EACH(Model)             \
    EACH(Style)             \
    EACH(Color)             \
    EACH(LicensePlate)      \
    EACH(LicensePlateState) \
    EACH(VIN)               \
    EACH(CaveatText)

// A vehicle of an incident as card:RMSVehicleIndexCards.
class LejisVehicleIndexCard final : public platform::ComObject<::LejisVehicleIndexCard, ILejisVehicleIndexCard> {
public:
    TEXT_PROPERTIES(VEHICLE_TEXTS)
    BOOLEAN_PROPERTY(CautionIndicator)
    OBJECT_PROPERTY(NullableInteger, Year)
    XML_METHODS()

private:
    void Reset();
};

}  // namespace lejis
