#include "inquiry/LejisSearchRequest.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

namespace lejis {
namespace {

template <typename Block>
void Write(ElementWriter& inquiry, const Block& block) {
    if (block->NotEmpty()) inquiry.Child(block->ToXmlElement(inquiry.Document()));
}

template <typename Block>
void Read(const ElementReader& inquiry, const ElementPath& name, const Block& block) {
    if (const auto element = inquiry.Child(name)) block->FromXmlElement(*element);
}

}  // namespace

STDMETHODIMP LejisSearchRequest::ToXmlElement(IDispatch* doc, IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(ToXmlElement(msxml::DocumentFrom(doc))); });
}

STDMETHODIMP LejisSearchRequest::ToXmlDocument(IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(ToXmlDocument()); });
}

STDMETHODIMP LejisSearchRequest::FromXmlElement(IDispatch* elem) {
    return Guard([&] {
        const msxml::Element element = msxml::ElementToRead(elem);
        LejisUtils::SetSelectionNamespaces(msxml::OwnerDocument(element));
        FromXmlElement(element);
    });
}

msxml::Element LejisSearchRequest::ToXmlElement(const OutputDocument& document) const {
    ElementWriter inquiry(document, L"inq:LEJISIndexInquiry");
    msxml::AppendRoot(document, inquiry.Element());
    Write(inquiry, personArguments);
    Write(inquiry, LocationArguments);
    Write(inquiry, PropertyArguments);
    Write(inquiry, VehicleArguments);
    Write(inquiry, AdHocInquiryArguments);
    Write(inquiry, InquiryControls);
    return inquiry.Element();
}

msxml::Document LejisSearchRequest::ToXmlDocument() const {
    const OutputDocument document = OutputDocument::Create();
    ToXmlElement(document);
    return document;
}

void LejisSearchRequest::FromXmlElement(const ElementReader& inquiry) {
    Read(inquiry, L"inq:PersonInquiryArguments", personArguments);
    Read(inquiry, L"inq:LocationInquiryArguments", LocationArguments);
    Read(inquiry, L"inq:PropertyInquiryArguments", PropertyArguments);
    Read(inquiry, L"inq:VehicleInquiryArguments", VehicleArguments);
    Read(inquiry, L"lejis:AdHocInquiryArguments", AdHocInquiryArguments);
    Read(inquiry, L"lejis:InquiryControls", InquiryControls);
}

}  // namespace lejis
