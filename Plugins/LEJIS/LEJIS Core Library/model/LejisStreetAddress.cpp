#include "model/LejisStreetAddress.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/NullableNumber.h"
#include "platform/Conversions.h"
#include "platform/Text.h"

namespace lejis {

msxml::Element LejisStreetAddress::Write(const OutputDocument& document) const {
    ElementWriter address(document, L"j:LocationAddress");
    address.Child(StreetElement(document));
    address.Text(L"j:LocationCityName", City);
    // The tests below ignore blanks at the ends; the texts are written with their blanks.
    if (!platform::IsBlank(State)) address.Text(L"j:LocationStateCode.ncicLSTA", State);
    if (!platform::IsBlank(ZIP)) address.Id(L"j:LocationPostalCodeID", ZIP);
    return address.Element();
}

msxml::Element LejisStreetAddress::StreetElement(const OutputDocument& document) const {
    ElementWriter street(document, L"j:LocationStreet");
    street.Text(L"j:StreetFullText", StreetFullText);
    street.Text(L"j:StreetNumberText", NumberText(*StreetNumber));
    // The address has one direction. It is always written as the one before the name; the one after the name is left
    // out.
    street.Text(L"j:StreetPredirectionalText", StreetDirection);
    street.Text(L"j:StreetName", StreetName);
    street.Text(L"j:StreetTypeText", StreetType);
    street.Text(L"j:StreetPostdirectionalText", L"");
    street.Text(L"j:StreetExtensionText", StreetExtension);
    return street.Element();
}

void LejisStreetAddress::Read(const ElementReader& element) {
    Reset();
    const auto address = element.Child(L"j:LocationAddress");
    if (!address) return;
    if (const auto street = address->Child(L"j:LocationStreet")) ReadStreet(*street);
    City = address->Text(L"j:LocationCityName");
    State = address->Text(L"j:LocationStateCode.ncicLSTA");
    ZIP = address->Text(L"j:LocationPostalCodeID/j:ID");
    texts_.Fit();
}

void LejisStreetAddress::ReadStreet(const ElementReader& street) {
    StreetFullText = street.Text(L"j:StreetFullText");
    const std::wstring_view number = street.Text(L"j:StreetNumberText");
    if (platform::ParseNumber(number)) {
        StreetNumber->Set(platform::ParseLong(number));
    } else {
        StreetNumber->Set(std::nullopt);
    }
    StreetName = street.Text(L"j:StreetName");
    StreetDirection = street.Text(L"j:StreetPredirectionalText");
    StreetType = street.Text(L"j:StreetTypeText");
    StreetExtension = street.Text(L"j:StreetExtensionText");
}

void LejisStreetAddress::Reset() {
    StreetNumber->Set(std::nullopt);
    texts_.Clear();
}

}  // namespace lejis
