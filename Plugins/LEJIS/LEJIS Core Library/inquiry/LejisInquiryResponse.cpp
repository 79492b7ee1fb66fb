#include "inquiry/LejisInquiryResponse.h"

#include "foundation/ElementReader.h"
#include "platform/Conversions.h"
#include "platform/msxml/Node.h"

namespace lejis {
namespace {

// The number that the text begins with, halves to the even neighbour; 0 for a text that begins with none.
long Count(const std::wstring& text) {
    const auto count = platform::RoundTo<long>(_variant_t(platform::LeadingNumber(text)));
    if (!count) throw platform::Overflow();
    return *count;
}

}  // namespace

STDMETHODIMP LejisInquiryResponse::get_IncidentCount(long* result) {
    return Guard(result, [&] { return IncidentCount; });
}

STDMETHODIMP LejisInquiryResponse::FromXmlElement(IDispatch* elem) {
    return Guard([&] {
        const msxml::Element element = msxml::ElementToRead(elem);
        LejisUtils::SetSelectionNamespaces(msxml::OwnerDocument(element));
        FromXmlElement(element);
    });
}

STDMETHODIMP LejisInquiryResponse::FromXmlDocument(IDispatch* doc) {
    return Guard([&] {
        const msxml::Document document = msxml::DocumentToRead(doc);
        LejisUtils::SetSelectionNamespaces(document);
        FromXmlBelow(document);
    });
}

void LejisInquiryResponse::FromXmlElement(const msxml::Element& element) {
    const ElementReader response(element);
    IncidentIndexCards = platform::Create<Collection>();
    for (const msxml::Element& cardElement : response.Children(L"lejis:RMSIncidentIndexCard")) {
        const auto card = platform::Create<LejisIncidentIndexCard>();
        card->FromXmlElement(cardElement);
        IncidentIndexCards->AddObject(card->Dispatch());
    }
    IncidentCount = Count(response.Text(L"lejis:incidentcount"));
}

void LejisInquiryResponse::FromXmlBelow(const msxml::Node& node) {
    const msxml::Node response = msxml::SelectNode(node, L".//lejis:LEJISIndexInquiryResponse");
    if (!response) throw platform::ObjectRequired();
    msxml::Element element;
    platform::Check(response.As(&element));
    FromXmlElement(element);
}

}  // namespace lejis
