#include "inquiry/LejisSearchRequest.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/QueryPrefixes.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

namespace lejis {
namespace {

template <typename Block>
void WriteBlock(ElementWriter& inquiry, const Block& block) {
    if (block->HasContent()) inquiry.Child(block->Write(inquiry.Document()));
}

template <typename Block>
void ReadBlock(const ElementReader& inquiry, const ElementPath& name, const Block& block) {
    if (const auto element = inquiry.Child(name)) block->Read(*element);
}

}  // namespace

STDMETHODIMP LejisSearchRequest::ToXmlElement(IDispatch* doc, IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(Write(msxml::DocumentFrom(doc))); });
}

STDMETHODIMP LejisSearchRequest::ToXmlDocument(IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(ToDocument()); });
}

STDMETHODIMP LejisSearchRequest::FromXmlElement(IDispatch* elem) {
    return Guard([&] {
        const msxml::Element element = msxml::ElementToRead(elem);
        LejisUtils::SetSelectionNamespaces(msxml::OwnerDocument(element));
        Read(ElementReader(element));
    });
}

msxml::Element LejisSearchRequest::Write(const OutputDocument& document) const {
    ElementWriter inquiry(document, L"inq:LEJISIndexInquiry");
    msxml::AppendRoot(document, inquiry.Element());
    WriteBlock(inquiry, personArguments);
    WriteBlock(inquiry, LocationArguments);
    WriteBlock(inquiry, PropertyArguments);
    WriteBlock(inquiry, VehicleArguments);
    WriteBlock(inquiry, AdHocInquiryArguments);
    WriteBlock(inquiry, InquiryControls);
    return inquiry.Element();
}

msxml::Document LejisSearchRequest::ToDocument() const {
    const OutputDocument document = OutputDocument::Create();
    Write(document);
    return document.Get();
}

void LejisSearchRequest::Read(const ElementReader& inquiry) {
    ReadBlock(inquiry, L"inq:PersonInquiryArguments", personArguments);
    ReadBlock(inquiry, L"inq:LocationInquiryArguments", LocationArguments);
    ReadBlock(inquiry, L"inq:PropertyInquiryArguments", PropertyArguments);
    ReadBlock(inquiry, L"inq:VehicleInquiryArguments", VehicleArguments);
    ReadBlock(inquiry, L"lejis:AdHocInquiryArguments", AdHocInquiryArguments);
    ReadBlock(inquiry, L"lejis:InquiryControls", InquiryControls);
}

}  // namespace lejis
