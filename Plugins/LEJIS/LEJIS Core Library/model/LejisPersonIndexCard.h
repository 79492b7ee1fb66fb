#pragma once

#include "foundation/NullableDate.h"
#include "foundation/NullableInteger.h"
#include "model/LejisStreetAddress.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// A person of an incident as card:RMSPersonIndexCards.
class LejisPersonIndexCard final : public platform::ComObject<::LejisPersonIndexCard, ILejisPersonIndexCard> {
public:
    TEXT_PROPERTY(OrganizationName)
    TEXT_PROPERTY(GivenName)
    TEXT_PROPERTY(MiddleName)
    TEXT_PROPERTY(SurName)
    TEXT_PROPERTY(SSN)
    TEXT_PROPERTY(DriversLicense)
    TEXT_PROPERTY(DriversLicenseState)
    TEXT_PROPERTY(SexNCIC)
    TEXT_PROPERTY(RaceNCIC)
    TEXT_PROPERTY(ChargeNCICCode)
    TEXT_PROPERTY(ChargeDescriptionText)
    TEXT_PROPERTY(SubjectCautionInformationCode)
    TEXT_PROPERTY(SubjectCautionInformationCaveat)
    TEXT_PROPERTY(CaveatText)
    TEXT_PROPERTY(Involvement)
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
