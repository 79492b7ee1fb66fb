// When an answer is read from its bytes, and that nobody can tell.
#include "services/PlainReading.h"

#include "services/LejisSearchWebService.h"
#include "support/Printing.h"
#include "unit_support/Answers.h"
#include "unit_support/BothReadings.h"
#include "unit_support/PlainReadingSwitch.h"
#include "unit_support/Soap.h"

#include <gtest/gtest.h>

using support::AnsweredCard;
using support::InquiryResponse;
using support::ObservedSearch;
using support::ObserveSearchWith;
using support::Script;
using support::Soap;

namespace lejis {
namespace {

struct Row {
    const char* name;
    Script script;
    bool isReadPlainly;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const std::wstring kAnswer = InquiryResponse(AnsweredCard(L"2007-1") + AnsweredCard(L"2007-2") +
                                             L"<lejis:incidentcount>2</lejis:incidentcount>");

Script Typed(const wchar_t* contentType) { return {.responseText = kAnswer, .contentType = contentType}; }

Script Bytes(const std::string& bytes) { return {.responseText = support::Wide(bytes), .responseBody = bytes}; }

// An answer with these texts in the fields of its card, which are the incident's caveat and its location's city.
Script WithTexts(const std::wstring& caveat, const std::wstring& city = L"ERIE") {
    std::wstring card = AnsweredCard(L"2007-1");
    const std::wstring end = L"</lejis:RMSIncidentIndexCard>";
    card.insert(card.size() - end.size(), L"<j:IncidentLocation><j:LocationAddress><j:LocationCityName>" + city +
                                              L"</j:LocationCityName></j:LocationAddress></j:IncidentLocation>"
                                              L"<j:CaveatText>" +
                                              caveat + L"</j:CaveatText>");
    return {.responseText = InquiryResponse(card)};
}

Script InAnswer(const std::wstring& content) { return {.responseText = InquiryResponse(content)}; }

Script Whole(const std::wstring& text) { return {.responseText = text}; }

const std::wstring kEnvelope = L"<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'>";
const std::wstring kResponse = L"<l:LEJISIndexInquiryResponse xmlns:l='http://lejis.example/lejis/jxdm/1.0/service'/>";
// A second response that would raise a different event.
const std::wstring kOtherResponse =
    L"<l:LEJISIndexInquiryResponse xmlns:l='http://lejis.example/lejis/jxdm/1.0/service'>"
    L"<l:incidentcount>5</l:incidentcount></l:LEJISIndexInquiryResponse>";

const Row kRows[] = {
    {"Answer", Whole(kAnswer), true},
    {"NoCards", InAnswer(L""), true},
    {"CountWithoutCards", InAnswer(L"<lejis:incidentcount>5</lejis:incidentcount>"), true},
    {"FractionOfACount", InAnswer(L"<lejis:incidentcount>2.5</lejis:incidentcount>"), true},
    {"CountThatIsNotANumber", InAnswer(L"<lejis:incidentcount>many</lejis:incidentcount>"), true},
    {"CountBetweenBlanks", InAnswer(L"<lejis:incidentcount> 5\n</lejis:incidentcount>"), true},
    {"TwoCounts", InAnswer(L"<lejis:incidentcount>0</lejis:incidentcount><lejis:incidentcount>5</lejis:incidentcount>"),
     true},
    {"EmptyCountBeforeACount", InAnswer(L"<lejis:incidentcount/><lejis:incidentcount>5</lejis:incidentcount>"), true},
    {"CountOfElements", InAnswer(L"<lejis:incidentcount>1<x>2</x></lejis:incidentcount>"), false},
    {"CountOutOfRange", InAnswer(L"<lejis:incidentcount>99999999999</lejis:incidentcount>"), false},
    {"CardWithoutIdentifiers", InAnswer(AnsweredCard(L"1") + L"<lejis:RMSIncidentIndexCard/>"), false},
    {"CardsOneLevelTooDeep", InAnswer(L"<x>" + AnsweredCard(L"1") + L"</x>"), true},
    {"OtherElementsBetween", InAnswer(L"<x/>" + AnsweredCard(L"1") + L"text<lejis:y>1</lejis:y>" + AnsweredCard(L"2")),
     true},
    {"TextBetweenBlanks", WithTexts(L" Armed. ", L"\r\n ERIE"), true},
    {"TextOfSeveralLines", WithTexts(L"Armed.\r\nDangerous.\n\n  See 2006-1."), true},
    {"TextOfElements", WithTexts(L"Armed.<x>Dangerous.</x>"), false},
    {"TextOfKnownElements", WithTexts(L"<j:ID>1</j:ID>"), false},
    {"References", WithTexts(L"Smith &amp; Wesson &lt;9&#x20;mm&gt;", L"\x20AC\xD83D\xDE00"), true},
    {"CharacterData", WithTexts(L"<![CDATA[Armed.]]>"), false},
    {"Comment", WithTexts(L"Armed.<!-- -->"), false},
    {"ManyTextsBetweenBlanks", InAnswer([] {
         std::wstring cards;
         for (int card = 0; card < 30; ++card) {
             const std::wstring text = WithTexts(L" Armed. ", L" ERIE ").responseText;
             const size_t begin = text.find(L"<lejis:RMSIncidentIndexCard");
             cards += text.substr(begin, text.find(L"</lejis:LEJISIndexInquiryResponse>") - begin);
         }
         return cards;
     }()),
     true},
    {"MalformedAtTheEnd", Whole(kAnswer + L"<"), false},
    {"CutOff", Whole(kAnswer.substr(0, kAnswer.size() - 20)), false},
    {"CommentAtTheEnd", Whole(kAnswer + L"<!-- -->"), false},
    {"LineAtTheEnd", Whole(kAnswer + L"\r\n"), true},
    {"Declaration", Whole(L"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n" + kAnswer), true},
    {"ByteOrderMark", Whole(L"\xFEFF" + kAnswer), true},
    {"OtherEncodingDeclared", Whole(L"<?xml version='1.0' encoding='ISO-8859-1'?>" + kAnswer), false},
    {"Latin1", Bytes(support::Utf8(WithTexts(L"Stra").responseText).replace(300, 1, "\xDF")), false},
    {"Doctype", Whole(L"<!DOCTYPE x>" + kAnswer), false},
    {"HeaderBefore",
     Whole(kEnvelope + L"<soap:Header><x/></soap:Header><soap:Body>" + kResponse + L"</soap:Body></soap:Envelope>"),
     true},
    {"AnotherResponseInTheHeader",
     Whole(kEnvelope + L"<soap:Header>" + kOtherResponse + L"</soap:Header><soap:Body>" + kResponse +
           L"</soap:Body></soap:Envelope>"),
     true},
    {"BodyOfAnotherNamespaceBefore",
     Whole(kEnvelope + L"<x:Body xmlns:x='urn:x'>" + kOtherResponse + L"</x:Body><soap:Body>" + kResponse +
           L"</soap:Body></soap:Envelope>"),
     true},
    {"ElementsAfter",
     Whole(kEnvelope + L"<soap:Body>" + kResponse + L"<x/></soap:Body><soap:Body/><y/></soap:Envelope>"), true},
    {"SecondBodyHoldsTheResponse",
     Whole(kEnvelope + L"<soap:Body/><soap:Body>" + kResponse + L"</soap:Body></soap:Envelope>"), false},
    {"ElementBeforeInBody", Whole(kEnvelope + L"<soap:Body><x/>" + kResponse + L"</soap:Body></soap:Envelope>"), false},
    {"ResponseDeepInTheBody", Whole(Soap(L"<a>" + kResponse + L"</a>")), false},
    {"ResponseBesideTheBody", Whole(kEnvelope + kResponse + L"<soap:Body/></soap:Envelope>"), false},
    {"ResponseAfterTheEnvelope", Whole(kEnvelope + L"</soap:Envelope>" + kResponse), false},
    {"ResponseAfterAnEmptyEnvelope",
     Whole(L"<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'/>" + kResponse), false},
    {"ResponseAlone", Whole(kResponse), false},
    {"BodyAlone",
     Whole(L"<soap:Body xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'>" + kResponse + L"</soap:Body>"), false},
    {"EnvelopeOfAnotherVersion",
     Whole(L"<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'><s:Body>" + kResponse +
           L"</s:Body></s:Envelope>"),
     false},
    {"EmptyBody", Whole(Soap(L"")), false},
    {"NoBody", Whole(kEnvelope + L"</soap:Envelope>"), false},
    {"FaultWithStatus200", Whole(support::SoapFault(L"soap:Server", L"x")), false},
    {"ResponseOfAnotherNamespace", Whole(Soap(L"<LEJISIndexInquiryResponse/>")), false},
    {"Empty", Whole(L""), false},
    {"NotXml", Whole(L"It works!"), false},
    {"Fault", {.status = 500, .responseText = support::SoapFault(L"soap:Server", L"x")}, false},
    {"AnswerWithStatus500", {.status = 500, .responseText = kAnswer}, false},
    {"AnswerWithStatus202", {.status = 202, .responseText = kAnswer}, false},
    {"NoBytes", {.responseText = kAnswer, .hasResponseBody = false}, false},
    {"NoDocumentAndNoBytes", {.hasResponseBody = false, .hasResponseXml = false}, false},
};

class PlainReading : public testing::TestWithParam<Row> {};

TEST_P(PlainReading, TellsTheClientTheSame) {
    const ObservedSearch plain = ObserveSearchWith(GetParam().script, true);
    const ObservedSearch document = ObserveSearchWith(GetParam().script, false);
    EXPECT_EQ(document.events, plain.events);
    EXPECT_EQ(document.results, plain.results);
    EXPECT_EQ(GetParam().isReadPlainly, plain.isReadPlainly);
    EXPECT_FALSE(document.isReadPlainly);
}

INSTANTIATE_TEST_SUITE_P(Answers, PlainReading, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.name); });

const std::pair<const wchar_t*, bool> kContentTypes[] = {
    {L"text/xml", true},
    {L"TEXT/XML", true},
    {L"text/xml; charset=utf-8", true},
    {L"text/xml;charset=utf-8", true},
    {L"text/xml ; charset=UTF-8 ", true},
    {L"text/xml; charset=\"utf-8\"", true},
    {L"application/xml", true},
    {L"application/soap+xml", true},
    {L"application/soap+xml; charset=Utf-8", true},
    {L"", false},
    {L"text/html", false},
    {L"text/plain", false},
    {L"application/octet-stream", false},
    {L"xml", false},
    {L"+xml", false},
    {L"text/xmlx", false},
    {L"text/xml-external-parsed-entity", false},
    {L"text/xml, text/html", false},
    {L"text/xml; charset=iso-8859-1", false},
    {L"text/xml; charset=utf-16", false},
    {L"text/xml; charset=utf8", false},
    {L"text/xml; charset=", false},
    {L"text/xml; charset = utf-8", false},
    {L"text/xml; charset='utf-8'", false},
    {L"text/xml; charset=utf-8; action=x", false},
    {L"text/xml; version=1.0", false},
    {L"text/xml;", false},
};

TEST(PlainReadingOfContentTypes, IsOfXmlInUtf8Alone) {
    for (const auto& [contentType, isReadPlainly] : kContentTypes) {
        const ObservedSearch seen = ObserveSearchWith(Typed(contentType), true);
        EXPECT_EQ(isReadPlainly, seen.isReadPlainly) << support::Utf8(contentType);
        EXPECT_EQ(std::vector<std::wstring>{L"SearchCompleted: 2 cards"}, seen.events) << support::Utf8(contentType);
    }
}

TEST(PlainReadingOfAll, HappensWhereItIsSwitchedOn) {
    EXPECT_TRUE(ObserveSearchWith(Whole(kAnswer), true).isReadPlainly);
    EXPECT_FALSE(ObserveSearchWith(Whole(kAnswer), false).isReadPlainly);
}

TEST(PlainReadingOfTexts, HasMsxmlAskedForAFewOfACard) {
    std::wstring street;
    for (const wchar_t* name :
         {L"StreetFullText", L"StreetName", L"StreetTypeText", L"StreetPredirectionalText", L"StreetExtensionText"}) {
        street += std::wstring(L"<j:") + name + L"> 1 </j:" + name + L">";
    }
    const std::wstring inCity = L"ERIE</j:LocationCityName><j:LocationStreet>" + street +
                                L"</j:LocationStreet><j:LocationPostalCodeID><j:ID> 1 </j:ID></j:LocationPostalCodeID>"
                                L"<j:LocationCityName>";
    EXPECT_TRUE(ObserveSearchWith(WithTexts(L" 1 ", inCity), true).isReadPlainly);
    const std::wstring charge =
        L" 1 </j:CaveatText><j:ChargeNCICCode> 1 </j:ChargeNCICCode>"
        L"<j:ChargeDescriptionText> 1 </j:ChargeDescriptionText><j:CaveatText>";
    const Script many = WithTexts(charge, inCity);
    EXPECT_FALSE(ObserveSearchWith(many, true).isReadPlainly);
    EXPECT_TRUE(ObserveSearchWith(many, true).SameAs(ObserveSearchWith(many, false)));
}

TEST(PlainReadingThatFails, LeavesTheResultsBefore) {
    const support::PlainReadingSwitch on(true);
    support::ScriptedHttp http(Whole(kAnswer));
    const auto service = platform::Create<LejisSearchWebService>();
    service->URL = L"http://lejis-interface/search";
    const auto request = platform::Create<LejisSearchRequest>();
    Microsoft::WRL::ComPtr<ICollection> before, after;
    EXPECT_EQ(S_OK, service->Search(request.Get()));
    EXPECT_EQ(S_OK, service->Run());
    EXPECT_EQ(S_OK, service->get_results(before.GetAddressOf()));
    http.script = Whole(kAnswer + L"<");
    EXPECT_EQ(S_OK, service->Search(request.Get()));
    EXPECT_EQ(S_OK, service->Run());
    EXPECT_EQ(S_OK, service->get_results(after.GetAddressOf()));
    EXPECT_NE(nullptr, before);
    EXPECT_EQ(before, after);
}

}  // namespace
}  // namespace lejis
