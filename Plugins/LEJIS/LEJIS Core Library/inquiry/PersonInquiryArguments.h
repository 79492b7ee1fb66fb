#pragma once

#include "foundation/NullableDate.h"
#include "foundation/NullableInteger.h"
#include "inquiry/BlockMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The person to search for, as inq:PersonInquiryArguments.
class PersonInquiryArguments final : public platform::ComObject<::PersonInquiryArguments, IPersonInquiryArguments> {
public:
    TEXT_PROPERTY(GivenName)
    TEXT_PROPERTY(MiddleName)
    TEXT_PROPERTY(SurName)
    TEXT_PROPERTY(SSN)
    TEXT_PROPERTY(DriversLicense)
    TEXT_PROPERTY(DriversLicenseState)
    TEXT_PROPERTY(SexNCIC)
    TEXT_PROPERTY(RaceNCIC)
    OBJECT_PROPERTY(NullableDate, BirthDate)
    OBJECT_PROPERTY(NullableInteger, Height)
    OBJECT_PROPERTY(NullableInteger, Weight)
    BLOCK_METHODS()
};

}  // namespace lejis
