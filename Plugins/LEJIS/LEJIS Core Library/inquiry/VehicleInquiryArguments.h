#pragma once

#include "foundation/NullableInteger.h"
#include "inquiry/BlockMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The vehicle to search for, as inq:VehicleInquiryArguments.
class VehicleInquiryArguments final : public platform::ComObject<::VehicleInquiryArguments, IVehicleInquiryArguments> {
public:
    TEXT_PROPERTY(Make)
    TEXT_PROPERTY(Model)
    TEXT_PROPERTY(Style)
    TEXT_PROPERTY(Color)
    TEXT_PROPERTY(LicensePlate)
    TEXT_PROPERTY(LicensePlateState)
    TEXT_PROPERTY(VIN)
    OBJECT_PROPERTY(NullableInteger, Year)
    BLOCK_METHODS()
};

}  // namespace lejis
