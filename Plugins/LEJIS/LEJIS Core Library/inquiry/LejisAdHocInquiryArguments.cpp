#include "inquiry/LejisAdHocInquiryArguments.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"

namespace lejis {

// Blanks count here, unlike in the other blocks.
bool LejisAdHocInquiryArguments::HasContent() const { return !QueryString.empty(); }

msxml::Element LejisAdHocInquiryArguments::Write(const OutputDocument& document) const {
    ElementWriter query(document, L"lejis:AdHocInquiryArguments");
    query.Text(L"lejis:queryString", QueryString);
    return query.Element();
}

void LejisAdHocInquiryArguments::Read(const ElementReader& words) { QueryString = words.Text(L"lejis:queryString"); }

}  // namespace lejis
