#include "inquiry/LocationInquiryArguments.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"

namespace lejis {

bool LocationInquiryArguments::HasContent() const {
    return AnyNotBlank({StreetFullText, StreetName, City, State, ZIP});
}

msxml::Element LocationInquiryArguments::Write(const OutputDocument& document) const {
    ElementWriter location(document, L"inq:LocationInquiryArguments");
    location.OptionalText(L"j:StreetFullText", StreetFullText);
    location.OptionalText(L"j:StreetName", StreetName);
    location.OptionalText(L"j:LocationCityName", City);
    location.OptionalText(L"j:LocationStateCode.ncicLSTA", State);
    location.OptionalId(L"j:LocationPostalCodeID", ZIP);
    return location.Element();
}

void LocationInquiryArguments::Read(const ElementReader& location) {
    StreetFullText = location.Text(L"j:StreetFullText");
    StreetName = location.Text(L"j:StreetName");
    City = location.Text(L"j:LocationCityName");
    State = location.Text(L"j:LocationStateCode.ncicLSTA");
    ZIP = location.Text(L"j:LocationPostalCodeID/j:ID");
}

}  // namespace lejis
