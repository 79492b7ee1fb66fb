#include "inquiry/LejisInquiryResponse.h"

#include "foundation/ElementName.h"
#include "foundation/ElementReader.h"
#include "platform/Conversions.h"
#include "platform/msxml/Depth.h"
#include "platform/msxml/Node.h"

namespace lejis {
namespace {

// The number that the text begins with, halves to the even neighbour; 0 for a text that begins with none.
long Count(std::wstring_view text) {
    const auto count = platform::RoundTo<long>(_variant_t(platform::LeadingDecimal(text)));
    if (!count) throw platform::Overflow();
    return *count;
}

bool IsNamed(const msxml::Node& node, const ElementName& name) {
    return msxml::LocalName(node) == name.LocalName() && msxml::NamespaceUri(node) == name.NamespaceUri();
}

// The first answer below the node in document order. A query would go through all that stands behind it as well.
msxml::Node FindAnswer(const msxml::Node& node, int depth = 0) {
    if (depth == msxml::kMaximumDepth) msxml::RaiseTooDeep();
    for (msxml::Node child = msxml::FirstChild(node); child; child = msxml::NextSibling(child)) {
        if (IsNamed(child, L"lejis:LEJISIndexInquiryResponse")) return child;
        if (msxml::Node found = FindAnswer(child, depth + 1)) return found;
    }
    return nullptr;
}

}  // namespace

STDMETHODIMP LejisInquiryResponse::get_IncidentCount(long* result) {
    return Guard(result, [&] { return IncidentCount; });
}

STDMETHODIMP LejisInquiryResponse::FromXmlElement(IDispatch* elem) {
    return Guard([&] {
        const msxml::Element element = msxml::ElementToRead(elem);
        LejisUtils::SetSelectionNamespaces(msxml::OwnerDocument(element));
        Read(element);
    });
}

STDMETHODIMP LejisInquiryResponse::FromXmlDocument(IDispatch* doc) {
    return Guard([&] {
        const msxml::Document document = msxml::DocumentToRead(doc);
        LejisUtils::SetSelectionNamespaces(document);
        ReadBelow(document);
    });
}

void LejisInquiryResponse::Read(const msxml::Element& element) {
    IncidentIndexCards = platform::Create<Collection>();
    std::optional<platform::OutText> count;
    // One after the other: a large answer would be too much to take at once.
    for (msxml::Node child = msxml::FirstChild(element); child; child = msxml::NextSibling(child)) {
        if (IsNamed(child, L"lejis:RMSIncidentIndexCard")) {
            const auto card = platform::Create<LejisIncidentIndexCard>();
            card->Read(ElementReader(msxml::AsElement(child)));
            IncidentIndexCards->AddObject(card->Dispatch());
        } else if (!count && IsNamed(child, L"lejis:incidentcount")) {
            msxml::RequireBoundedDepth(child);
            count.emplace(msxml::Text(child));
        }
    }
    IncidentCount = Count(count ? count->View() : std::wstring_view());
}

void LejisInquiryResponse::ReadBelow(const msxml::Node& node) {
    const msxml::Node answer = FindAnswer(node);
    if (!answer) throw platform::ObjectRequired();
    Read(msxml::AsElement(answer));
}

}  // namespace lejis
