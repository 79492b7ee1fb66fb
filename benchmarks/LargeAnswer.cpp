#include "LargeAnswer.h"

#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"
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

std::string Ascii(const std::wstring& text) {
    std::string ascii;
    for (const wchar_t character : text) ascii += static_cast<char>(character);
    return ascii;
}

// Puts a blank to the end of the first texts.
std::string WithBlanks(std::string card, int texts) {
    for (size_t end = card.find("</"); texts > 0; end = card.find("</", end + 2)) {
        if (card.at(end - 1) == '>') continue;
        card.insert(end++, 1, ' ');
        --texts;
    }
    return card;
}

}  // namespace

std::string LargeAnswer(int incidents, int textsWithBlank) {
    const msxml::Document document = msxml::CreateDocument();
    const std::string card = WithBlanks(Ascii(Compact(msxml::Xml(TypicalIncident()->Write(document)))), textsWithBlank);
    const std::string begin =
        Ascii(L"<soap:Envelope" + Declarations() + L"><soap:Body><lejis:LEJISIndexInquiryResponse>");
    const std::string end = "<lejis:incidentcount>" + std::to_string(incidents) +
                            "</lejis:incidentcount></lejis:LEJISIndexInquiryResponse></soap:Body></soap:Envelope>";
    std::string text;
    // At once: what memory an answer takes is measured.
    text.reserve(begin.size() + card.size() * static_cast<size_t>(incidents) + end.size());
    text += begin;
    for (int incident = 0; incident < incidents; ++incident) text += card;
    return text += end;
}

std::wstring LargeAnswerText(int incidents) { return platform::FromUtf8(LargeAnswer(incidents)); }

msxml::Document LoadedAnswer(int incidents) {
    const msxml::Document document = msxml::CreateDocument();
    msxml::LoadXml(document, LargeAnswerText(incidents));
    return document;
}

}  // namespace benchmarks
