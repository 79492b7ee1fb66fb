#include "inquiry/LejisInquiryResponse.h"

#include "foundation/ElementName.h"
#include "foundation/ElementReader.h"
#include "foundation/NotPlain.h"
#include "foundation/PlainMarkup.h"
#include "foundation/QueryPrefixes.h"
#include "platform/Conversions.h"
#include "platform/msxml/Node.h"

namespace lejis {
namespace {

// The number that the text begins with, halves to the even neighbour; 0 for a text that begins with no number.
long Count(std::wstring_view text) {
    const auto count = platform::RoundTo<long>(_variant_t(platform::LeadingDecimal(text)));
    if (!count) throw platform::Overflow();
    return *count;
}

bool IsNamed(const msxml::Node& node, const ElementName& name) {
    return msxml::LocalName(node) == name.LocalName() && msxml::NamespaceUri(node) == name.NamespaceUri();
}

// The first answer below the node in document order. A query would go through everything after it too.
msxml::Node FindAnswer(const msxml::Node& node, int depth = 0) {
    if (depth == msxml::kMaximumDepth) msxml::RaiseTooDeep();
    for (msxml::Node child = msxml::FirstChild(node); child; child = msxml::NextSibling(child)) {
        if (IsNamed(child, L"lejis:LEJISIndexInquiryResponse")) return child;
        if (msxml::Node found = FindAnswer(child, depth + 1)) return found;
    }
    return nullptr;
}

// Steps into the answer where it leaves no doubt which one is meant: the first element of the first body.
void EnterAnswer(PlainMarkup& markup) {
    if (!markup.Is(L"soap:Envelope")) GiveUp();
    for (;; markup.Skip()) {
        if (!markup.NextChild()) GiveUp();
        if (markup.Is(L"soap:Body")) break;
    }
    if (!markup.NextChild() || !markup.Is(L"lejis:LEJISIndexInquiryResponse")) GiveUp();
}

// Passes over everything after the answer in the body and after the body in the envelope.
void LeaveAnswer(PlainMarkup& markup) {
    while (markup.NextChild()) markup.Skip();
    while (markup.NextChild()) markup.Skip();
    markup.RequireEnd();
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
    // The cards are taken one after the other, because a large answer would be too much at once.
    for (msxml::Node child = msxml::FirstChild(element); child; child = msxml::NextSibling(child)) {
        if (IsNamed(child, L"lejis:RMSIncidentIndexCard")) {
            AddCard(ElementReader(msxml::AsElement(child)));
        } else if (!count && IsNamed(child, L"lejis:incidentcount")) {
            msxml::RequireBoundedDepth(child);
            count.emplace(msxml::Text(child));
        }
    }
    IncidentCount = Count(count ? count->View() : std::wstring_view());
}

void LejisInquiryResponse::AddCard(const ElementReader& element) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    card->Read(element);
    IncidentIndexCards->AddObject(card->Dispatch());
}

void LejisInquiryResponse::ReadPlainMarkup(std::string_view bytes) {
    PlainMarkup markup(bytes);
    EnterAnswer(markup);
    IncidentIndexCards = platform::Create<Collection>();
    // One tree takes one child after the other: their number does not matter.
    const auto tree = std::make_shared<ElementTree>();
    std::optional<long> count;
    while (markup.NextChild()) {
        if (markup.Is(L"lejis:RMSIncidentIndexCard")) {
            tree->Take(markup);
            AddCard(ElementReader(tree));
        } else if (!count && markup.Is(L"lejis:incidentcount")) {
            tree->Take(markup);
            count = Count(tree->TextOf(0));
        } else {
            markup.Skip();
        }
    }
    LeaveAnswer(markup);
    IncidentCount = count.value_or(0);
}

void LejisInquiryResponse::ReadBelow(const msxml::Node& node) {
    const msxml::Node answer = FindAnswer(node);
    if (!answer) throw platform::ObjectRequired();
    Read(msxml::AsElement(answer));
}

}  // namespace lejis
