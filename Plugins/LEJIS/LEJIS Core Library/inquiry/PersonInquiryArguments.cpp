#include "inquiry/PersonInquiryArguments.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/NullableDate.h"
#include "foundation/NullableNumber.h"
#include "model/FieldReading.h"
#include "platform/Conversions.h"

namespace lejis {

bool PersonInquiryArguments::HasContent() const {
    return AnyNotBlank({GivenName, MiddleName, SurName, SSN, DriversLicense, DriversLicenseState, SexNCIC, RaceNCIC}) ||
           BirthDate->Date() || Height->Number() || Weight->Number();
}

// Blanks alone do not make the block worth sending. They are written when another field does.
msxml::Element PersonInquiryArguments::Write(const OutputDocument& document) const {
    ElementWriter person(document, L"inq:PersonInquiryArguments");
    person.Text(L"j:PersonSurName", SurName);
    person.Text(L"j:PersonGivenName", GivenName);
    person.Text(L"j:PersonMiddleName", MiddleName);
    person.OptionalId(L"j:PersonSSNID", SSN);
    // One of the two is enough for a search, unlike for a card.
    if (!DriversLicense.empty() || !DriversLicenseState.empty()) {
        ElementWriter licence(document, L"j:PersonDriverLicenseID");
        licence.OptionalText(L"j:ID", DriversLicense);
        licence.OptionalText(L"j:IDJurisdictionCode.ncicLSTA", DriversLicenseState);
        person.Child(licence);
    }
    person.OptionalText(L"j:PersonBirthDate", FormatNullableDate(*BirthDate));
    person.OptionalText(L"j:PersonSexCode", SexNCIC);
    person.OptionalText(L"j:PersonRaceCode", RaceNCIC);
    person.OptionalMeasure(L"j:PersonHeightMeasure", NumberText(*Height), L"j:personHeightUnitCode");
    person.OptionalMeasure(L"j:PersonWeightMeasure", NumberText(*Weight), L"j:personWeightUnitCode");
    return person.Element();
}

void PersonInquiryArguments::Read(const ElementReader& person) {
    SurName = person.Text(L"j:PersonSurName");
    GivenName = person.Text(L"j:PersonGivenName");
    MiddleName = person.Text(L"j:PersonMiddleName");
    SSN = person.Text(L"j:PersonSSNID/j:ID");
    DriversLicense = person.Text(L"j:PersonDriverLicenseID/j:ID");
    DriversLicenseState = person.Text(L"j:PersonDriverLicenseID/j:IDJurisdictionCode.ncicLSTA");
    BirthDate->Set(platform::ParseDate(person.Text(L"j:PersonBirthDate")));
    SexNCIC = person.Text(L"j:PersonSexCode");
    RaceNCIC = person.Text(L"j:PersonRaceCode");
    ReadNumber(person.Text(L"j:PersonWeightMeasure"), *Weight);
    ReadNumber(person.Text(L"j:PersonHeightMeasure"), *Height);
}

}  // namespace lejis
