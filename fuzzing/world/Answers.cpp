#include "world/Answers.h"

#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "unit_support/Answers.h"
#include "unit_support/Incidents.h"

namespace fuzzing {
namespace {

std::wstring Counted(int count) {
    return L"<lejis:incidentcount>" + std::to_wstring(count) + L"</lejis:incidentcount>";
}

// An incident with all its cards, as the library writes it.
std::wstring FullCard() {
    const msxml::Document document = msxml::CreateDocument();
    return msxml::Xml(support::FullIncident()->Write(document));
}

// Every field that is read, with a text that is ordinary, odd, or bad.
constexpr wchar_t kFields[] =
    L"<j:SubmissionSubmittedDate>2007-03-09</j:SubmissionSubmittedDate><j:ActivityDate>2007-03-08</j:ActivityDate>"
    L"<j:ActivityTime>14:05:00</j:ActivityTime><j:IncidentLocation><j:LocationAddress><j:LocationStreet>"
    L"<j:StreetFullText>12 N  MAIN ST</j:StreetFullText><j:StreetNumberText>12</j:StreetNumberText>"
    L"<j:StreetPredirectionalText>N</j:StreetPredirectionalText><j:StreetName> MAIN</j:StreetName>"
    L"<j:StreetTypeText>ST</j:StreetTypeText><j:StreetExtensionText/></j:LocationStreet>"
    L"<j:LocationCityName>ERIE</j:LocationCityName><j:LocationStateCode.ncicLSTA>PA</j:LocationStateCode.ncicLSTA>"
    L"<j:LocationPostalCodeID><j:ID>16501</j:ID></j:LocationPostalCodeID></j:LocationAddress></j:IncidentLocation>"
    L"<j:CaveatText>Smith &amp; Wesson.\nSee &lt;2006-1&gt;.</j:CaveatText>"
    L"<j:ChargeNCICCode>2299</j:ChargeNCICCode><j:ChargeDescriptionText>\x00C4rger \x20AC 5</j:ChargeDescriptionText>"
    L"<ext:CautionIndicatorFlag>true</ext:CautionIndicatorFlag>"
    L"<card:RMSPersonIndexCards><j:PersonSurName>O'BRIEN</j:PersonSurName><j:PersonGivenName>JOHN</j:PersonGivenName>"
    L"<j:PersonMiddleName> </j:PersonMiddleName><j:PersonBirthDate>1970-02-30</j:PersonBirthDate>"
    L"<j:PersonSexCode>M</j:PersonSexCode></card:RMSPersonIndexCards>"
    L"<card:RMSPersonIndexCards><j:PersonSurName>DOE</j:PersonSurName><j:PersonBirthDate>1980-01-01</j:PersonBirthDate>"
    L"<j:PersonSSNID><j:ID>164120001</j:ID></j:PersonSSNID><j:PersonDriverLicenseID><j:ID>12 345</j:ID>"
    L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>"
    L"<ext:PersonInvolvement>Witness</ext:PersonInvolvement><ext:CautionIndicatorFlag>1</ext:CautionIndicatorFlag>"
    L"</card:RMSPersonIndexCards><card:RMSPropertyIndexCards><j:PropertyTypeText>BICYCLE</j:PropertyTypeText>"
    L"<j:PropertySerialID><j:ID>X-1</j:ID></j:PropertySerialID></card:RMSPropertyIndexCards>"
    L"<card:RMSVehicleIndexCards><ext:VehicleMakeText>FORD</ext:VehicleMakeText>"
    L"<j:VehicleModelYearDate>2004</j:VehicleModelYearDate><j:VehicleID><j:ID>1FA</j:ID></j:VehicleID>"
    L"</card:RMSVehicleIndexCards>";

std::wstring CardWithFields() {
    std::wstring card = support::AnsweredCard(L"2007-1");
    card.replace(card.find(L"><card:"), 1,
                 L" xmlns:ext='http://lejis.example/lejis/jxdm/1.0/card/extra' xmlns:unused='urn:unused'>");
    return card.insert(card.rfind(L"</"), kFields);
}

}  // namespace

const std::vector<std::wstring>& AnswerTexts() {
    static const std::vector<std::wstring> texts = {
        support::InquiryResponse(support::AnsweredCard(L"1") + Counted(1)),
        support::InquiryResponse(Counted(0)),
        support::InquiryResponse(Counted(2) + support::AnsweredCard(L"1") + support::AnsweredCard(L"2")),
        support::InquiryResponse(CardWithFields() + Counted(1)),
        support::InquiryResponse(L"\r\n  " + CardWithFields() + L"\r\n  " + CardWithFields() + L"\r\n" + Counted(3)),
        support::InquiryResponse(FullCard() + Counted(1)),
    };
    return texts;
}

}  // namespace fuzzing
