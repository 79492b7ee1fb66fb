#include "model/LejisVehicleIndexCard.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/NullableNumber.h"
#include "model/FieldReading.h"
#include "platform/Conversions.h"

namespace lejis {

msxml::Element LejisVehicleIndexCard::Write(const OutputDocument& document) const {
    // Make and style are of the LEJIS extension, the rest is GJXDM.
    ElementWriter card(document, L"card:RMSVehicleIndexCards");
    card.OptionalText(L"ext:VehicleMakeText", Make);
    card.OptionalText(L"j:VehicleModelCodeText", Model);
    card.OptionalId(L"j:VehicleID", VIN);
    // The element holds the year number alone, although its name says date.
    card.OptionalText(L"j:VehicleModelYearDate", NumberText(*Year));
    card.OptionalText(L"ext:VehicleStyleText", Style);
    card.OptionalText(L"j:VehicleColorPrimaryText", Color);
    card.OptionalJurisdictionId(L"j:VehicleLicensePlateID", LicensePlate, LicensePlateState);
    card.OptionalText(L"j:CaveatText", CaveatText);
    card.Boolean(L"ext:CautionIndicatorFlag", CautionIndicator);
    return card.Element();
}

void LejisVehicleIndexCard::Read(const ElementReader& card) {
    Reset();
    Make = card.Text(L"ext:VehicleMakeText");
    Model = card.Text(L"j:VehicleModelCodeText");
    Style = card.Text(L"ext:VehicleStyleText");
    LicensePlate = card.Text(L"j:VehicleLicensePlateID/j:ID");
    LicensePlateState = card.Text(L"j:VehicleLicensePlateID/j:IDJurisdictionCode.ncicLSTA");
    VIN = card.Text(L"j:VehicleID/j:ID");
    Color = card.Text(L"j:VehicleColorPrimaryText");
    CaveatText = card.Text(L"j:CaveatText");
    texts_.Fit();
    // Unlike a person's measures, a year out of range is passed over and does not become 0.
    Year->Set(platform::ParseShort(card.Text(L"j:VehicleModelYearDate")));
    ReadFlag(card.Text(L"ext:CautionIndicatorFlag"), CautionIndicator);
}

void LejisVehicleIndexCard::Reset() {
    texts_.Clear();
    CautionIndicator = false;
    // The card gets a new holder: one that a client took before no longer belongs to it.
    Year = platform::Create<NullableInteger>();
}

}  // namespace lejis
