#include "inquiry/PropertyInquiryArguments.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"

namespace lejis {

bool PropertyInquiryArguments::HasContent() const { return AnyNotBlank({Category, Make, Model, SerialNumber}); }

// Unlike the other blocks this one writes all it has, empty texts too.
msxml::Element PropertyInquiryArguments::Write(const OutputDocument& document) const {
    ElementWriter property(document, L"inq:PropertyInquiryArguments");
    property.Text(L"j:PropertyCategoryText", Category);
    property.Text(L"j:PropertyMakeName", Make);
    property.Text(L"j:PropertyModelName", Model);
    property.Id(L"j:PropertySerialID", SerialNumber);
    return property.Element();
}

void PropertyInquiryArguments::Read(const ElementReader& property) {
    Category = property.Text(L"j:PropertyCategoryText");
    Make = property.Text(L"j:PropertyMakeName");
    Model = property.Text(L"j:PropertyModelName");
    SerialNumber = property.Text(L"j:PropertySerialID/j:ID");
}

}  // namespace lejis
