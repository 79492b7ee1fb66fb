#pragma once

#include "foundation/NullableDate.h"
#include "foundation/NullableInteger.h"
#include "model/LejisStreetAddress.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"
#include "platform/com/TextProperties.h"

#include <TVLejisCore.h>

namespace lejis {

#define PERSON_TEXTS(EACH)                \
    EACH(OrganizationName)                \
    EACH(GivenName)                       \
    EACH(MiddleName)                      \
    EACH(SurName)                         \
    EACH(SSN)                             \
    EACH(DriversLicense)                  \
    EACH(DriversLicenseState)             \
    EACH(SexNCIC)                         \
    EACH(RaceNCIC)                        \
    EACH(ChargeNCICCode)                  \
    EACH(ChargeDescriptionText)           \
    EACH(SubjectCautionInformationCode)   \
    EACH(SubjectCautionInformationCaveat) \
    EACH(CaveatText)                      \
    EACH(Involvement)

// A person of an incident as card:RMSPersonIndexCards.
class LejisPersonIndexCard final : public platform::ComObject<::LejisPersonIndexCard, ILejisPersonIndexCard> {
public:
    TEXT_PROPERTIES(PERSON_TEXTS)
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
