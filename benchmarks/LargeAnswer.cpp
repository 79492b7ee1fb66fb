#include "LargeAnswer.h"

#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "TypicalIncident.h"

#include <regex>

namespace benchmarks {
namespace {

std::wstring Declarations() {
    std::wstring text;
    for (const auto& prefix : lejis::Constants::kPrefixes) {
        text.append(L" xmlns:").append(prefix.name).append(L"=\"").append(prefix.uri).append(L"\"");
    }
    return text;
}

// Without what one implementation of MSXML adds: declarations on every element, and indentation.
std::wstring Compact(const std::wstring& text) {
    const std::wregex added(L" xmlns:[a-z]+=\"[^\"]*\"|\r\n\t*");
    return std::regex_replace(text, added, L"");
}

}  // namespace

std::wstring LargeAnswer(int incidents) {
    const msxml::Document document = msxml::CreateDocument();
    const std::wstring card = Compact(msxml::Xml(TypicalIncident()->Write(document)));
    std::wstring text = L"<soap:Envelope" + Declarations() + L"><soap:Body><lejis:LEJISIndexInquiryResponse>";
    for (int incident = 0; incident < incidents; ++incident) text += card;
    return text + L"<lejis:incidentcount>" + std::to_wstring(incidents) +
           L"</lejis:incidentcount></lejis:LEJISIndexInquiryResponse></soap:Body></soap:Envelope>";
}

msxml::Document LoadedAnswer(int incidents) {
    const msxml::Document document = msxml::CreateDocument();
    msxml::LoadXml(document, LargeAnswer(incidents));
    return document;
}

}  // namespace benchmarks
