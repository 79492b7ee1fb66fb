#pragma once

#include "foundation/NullableDate.h"
#include "foundation/NullableNumber.h"
#include "model/LejisStreetAddress.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// A person of an incident as card:RMSPersonIndexCards.
class LejisPersonIndexCard final : public platform::ComObject<::LejisPersonIndexCard, ILejisPersonIndexCard> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(OrganizationName)
    TEXT_FIELD(GivenName)
    TEXT_FIELD(MiddleName)
    TEXT_FIELD(SurName)
    TEXT_FIELD(SSN)
    TEXT_FIELD(DriversLicense)
    TEXT_FIELD(DriversLicenseState)
    TEXT_FIELD(SexNCIC)
    TEXT_FIELD(RaceNCIC)
    TEXT_FIELD(ChargeNCICCode)
    TEXT_FIELD(ChargeDescriptionText)
    TEXT_FIELD(SubjectCautionInformationCode)
    TEXT_FIELD(SubjectCautionInformationCaveat)
    TEXT_FIELD(CaveatText)
    TEXT_FIELD(Involvement)
    BOOLEAN_PROPERTY(CautionIndicator)
    OBJECT_PROPERTY(LejisStreetAddress, address)
    OBJECT_PROPERTY(NullableDate, BirthDate)
    OBJECT_PROPERTY(NullableInteger, Height)
    OBJECT_PROPERTY(NullableInteger, Weight)
    XML_METHODS()

private:
    void Reset();
};

}  // namespace lejis
