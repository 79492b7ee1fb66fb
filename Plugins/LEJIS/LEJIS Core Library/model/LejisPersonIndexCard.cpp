#include "model/LejisPersonIndexCard.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/NullableDate.h"
#include "foundation/NullableNumber.h"
#include "model/FieldReading.h"
#include "platform/Text.h"

namespace lejis {

msxml::Element LejisPersonIndexCard::Write(const OutputDocument& document) const {
    ElementWriter organization(document, L"j:IncidentJurisdictionalOrganization");
    organization.Text(L"j:OrganizationName", OrganizationName);
    ElementWriter residence(document, L"j:Residence");
    residence.Child(address->Write(document));

    ElementWriter card(document, L"card:RMSPersonIndexCards");
    card.Child(organization);
    card.OptionalText(L"j:PersonSurName", SurName);
    card.OptionalText(L"j:PersonGivenName", GivenName);
    card.OptionalText(L"j:PersonMiddleName", MiddleName);
    card.Child(residence);
    card.OptionalId(L"j:PersonSSNID", SSN);
    card.OptionalJurisdictionId(L"j:PersonDriverLicenseID", DriversLicense, DriversLicenseState);
    card.OptionalText(L"j:PersonBirthDate", FormatNullableDate(*BirthDate));
    card.OptionalText(L"j:PersonSexCode", SexNCIC);
    card.OptionalMeasure(L"j:PersonHeightMeasure", NumberText(*Height), L"j:personHeightUnitCode");
    card.OptionalMeasure(L"j:PersonWeightMeasure", NumberText(*Weight), L"j:personWeightUnitCode");
    card.OptionalText(L"j:PersonRaceCode", RaceNCIC);
    card.OptionalText(L"j:ChargeNCICCode", ChargeNCICCode);
    card.OptionalText(L"j:ChargeDescriptionText", ChargeDescriptionText);
    card.OptionalText(L"j:SubjectCautionInformationCode", SubjectCautionInformationCode);
    card.OptionalText(L"j:SubjectCautionInformationCaveat", SubjectCautionInformationCaveat);
    card.OptionalText(L"j:CaveatText", CaveatText);
    card.OptionalText(L"ext:PersonInvolvement", Involvement);
    card.Boolean(L"ext:CautionIndicatorFlag", CautionIndicator);
    return card.Element();
}

void LejisPersonIndexCard::Read(const ElementReader& card) {
    Reset();
    OrganizationName = card.Text(L"j:IncidentJurisdictionalOrganization/j:OrganizationName");
    SurName = card.Text(L"j:PersonSurName");
    MiddleName = card.Text(L"j:PersonMiddleName");
    GivenName = card.Text(L"j:PersonGivenName");
    if (const auto residence = card.Child(L"j:Residence")) address->Read(*residence);
    SSN = card.Text(L"j:PersonSSNID/j:ID");
    DriversLicense = card.Text(L"j:PersonDriverLicenseID/j:ID");
    DriversLicenseState = card.Text(L"j:PersonDriverLicenseID/j:IDJurisdictionCode.ncicLSTA");
    // This is the one field whose bad content is an error: an empty or malformed date stops the reading here.
    if (const auto date = card.TextIfAny(L"j:PersonBirthDate")) BirthDate->Assign(_variant_t(platform::ToBstr(*date)));
    SexNCIC = card.Text(L"j:PersonSexCode");
    RaceNCIC = card.Text(L"j:PersonRaceCode");
    ReadMeasure(card.Text(L"j:PersonHeightMeasure"), *Height);
    ReadMeasure(card.Text(L"j:PersonWeightMeasure"), *Weight);
    ChargeNCICCode = card.Text(L"j:ChargeNCICCode");
    ChargeDescriptionText = card.Text(L"j:ChargeDescriptionText");
    SubjectCautionInformationCode = card.Text(L"j:SubjectCautionInformationCode");
    SubjectCautionInformationCaveat = card.Text(L"j:SubjectCautionInformationCaveat");
    Involvement = card.Text(L"ext:PersonInvolvement");
    texts_.Fit();
    ReadFlag(card.Text(L"ext:CautionIndicatorFlag"), CautionIndicator);
    // j:CaveatText is written and never read back; this is deliberate.
}

void LejisPersonIndexCard::Reset() {
    texts_.Clear();
    CautionIndicator = false;
    address = platform::Create<LejisStreetAddress>();
    BirthDate->Set(std::nullopt);
    Height->Set(std::nullopt);
    Weight->Set(std::nullopt);
}

}  // namespace lejis
