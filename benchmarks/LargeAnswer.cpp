#include "LargeAnswer.h"

#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "TypicalIncident.h"

namespace benchmarks {

std::wstring LargeAnswer(int incidents) {
    using namespace lejis::Constants;
    const msxml::Document document = msxml::CreateDocument();
    const std::wstring card = msxml::Xml(TypicalIncident()->ToXmlElement(document));
    std::wstring text = std::wstring(L"<soap:Envelope xmlns:soap='") + kSoapNamespace +
                        L"'><soap:Body><lejis:LEJISIndexInquiryResponse xmlns:lejis='" + kLejisNamespace + L"'>";
    for (int incident = 0; incident < incidents; ++incident) text += card;
    return text + L"<lejis:incidentcount>" + std::to_wstring(incidents) +
           L"</lejis:incidentcount></lejis:LEJISIndexInquiryResponse></soap:Body></soap:Envelope>";
}

}  // namespace benchmarks
