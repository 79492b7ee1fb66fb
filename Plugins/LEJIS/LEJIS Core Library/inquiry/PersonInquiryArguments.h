#pragma once

#include "foundation/NullableDate.h"
#include "foundation/NullableNumber.h"
#include "inquiry/BlockMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The person to search for, as inq:PersonInquiryArguments.
class PersonInquiryArguments final : public platform::ComObject<::PersonInquiryArguments, IPersonInquiryArguments> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(GivenName)
    TEXT_FIELD(MiddleName)
    TEXT_FIELD(SurName)
    TEXT_FIELD(SSN)
    TEXT_FIELD(DriversLicense)
    TEXT_FIELD(DriversLicenseState)
    TEXT_FIELD(SexNCIC)
    TEXT_FIELD(RaceNCIC)
    OBJECT_PROPERTY(NullableDate, BirthDate)
    OBJECT_PROPERTY(NullableInteger, Height)
    OBJECT_PROPERTY(NullableInteger, Weight)
    BLOCK_METHODS()
};

}  // namespace lejis
