#pragma once

#include "foundation/NullableNumber.h"
#include "inquiry/BlockMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The vehicle to search for, as inq:VehicleInquiryArguments.
class VehicleInquiryArguments final : public platform::ComObject<::VehicleInquiryArguments, IVehicleInquiryArguments> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(Make)
    TEXT_FIELD(Model)
    TEXT_FIELD(Style)
    TEXT_FIELD(Color)
    TEXT_FIELD(LicensePlate)
    TEXT_FIELD(LicensePlateState)
    TEXT_FIELD(VIN)
    OBJECT_PROPERTY(NullableInteger, Year)
    BLOCK_METHODS()
};

}  // namespace lejis
