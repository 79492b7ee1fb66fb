#include "inquiry/LejisInquiryControls.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "platform/Conversions.h"
#include "platform/msxml/Node.h"

namespace lejis {

// The controls are part of every search.
bool LejisInquiryControls::HasContent() const { return true; }

msxml::Element LejisInquiryControls::Write(const OutputDocument& document) const {
    ElementWriter controls(document, L"lejis:InquiryControls");
    controls.Boolean(L"lejis:irrinfo", IrrInfo);
    if (MaxIncidents > 0) controls.Text(L"lejis:maxincidents", std::to_wstring(MaxIncidents));
    for (long index = 1; index <= static_cast<long>(ExcludedORIIDs->Count()); ++index) {
        controls.Text(L"lejis:excludedOriid", platform::ToText(ExcludedORIIDs->Item(index)));
    }
    return controls.Element();
}

void LejisInquiryControls::Read(const ElementReader& controls) {
    // Exactly "false" is false; every other text, "FALSE" and "0" among them, is true on purpose.
    const auto irrInfo = controls.TextIfAny(L"lejis:irrinfo");
    IrrInfo = irrInfo && irrInfo != L"false";
    MaxIncidents = platform::ParseLong(controls.Text(L"lejis:maxincidents"));
    ExcludedORIIDs = platform::Create<Collection>();
    for (const ElementReader& excluded : controls.Children(L"lejis:excludedOriid")) {
        ExcludedORIIDs->AddText(excluded.Text());
    }
}

}  // namespace lejis
