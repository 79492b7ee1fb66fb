#include "inquiry/VehicleInquiryArguments.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/NullableNumber.h"
#include "model/FieldReading.h"

namespace lejis {

bool VehicleInquiryArguments::HasContent() const {
    return AnyNotBlank({Make, Model, Style, Color, LicensePlate, LicensePlateState, VIN}) || Year->Number();
}

msxml::Element VehicleInquiryArguments::Write(const OutputDocument& document) const {
    ElementWriter vehicle(document, L"inq:VehicleInquiryArguments");
    vehicle.OptionalId(L"j:VehicleID", VIN);
    // One of the two is enough for a search; then both elements are written.
    if (!LicensePlate.empty() || !LicensePlateState.empty()) {
        vehicle.JurisdictionId(L"j:VehicleLicensePlateID", LicensePlate, LicensePlateState);
    }
    // Make and style are of the LEJIS extension, the rest is GJXDM.
    vehicle.Text(L"ext:VehicleMakeText", Make);
    vehicle.Text(L"j:VehicleModelCodeText", Model);
    vehicle.OptionalText(L"j:VehicleModelYearDate", NumberText(*Year));
    vehicle.Text(L"ext:VehicleStyleText", Style);
    vehicle.Text(L"j:VehicleColorPrimaryText", Color);
    return vehicle.Element();
}

void VehicleInquiryArguments::Read(const ElementReader& vehicle) {
    VIN = vehicle.Text(L"j:VehicleID/j:ID");
    LicensePlate = vehicle.Text(L"j:VehicleLicensePlateID/j:ID");
    LicensePlateState = vehicle.Text(L"j:VehicleLicensePlateID/j:IDJurisdictionCode.ncicLSTA");
    Make = vehicle.Text(L"ext:VehicleMakeText");
    Model = vehicle.Text(L"j:VehicleModelCodeText");
    ReadNumber(vehicle.Text(L"j:VehicleModelYearDate"), *Year);
    Style = vehicle.Text(L"ext:VehicleStyleText");
    Color = vehicle.Text(L"j:VehicleColorPrimaryText");
}

}  // namespace lejis
