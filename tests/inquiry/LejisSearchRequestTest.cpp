#include "inquiry/LejisSearchRequest.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::NewDocument;
using support::ParseElement;
using support::SameXml;

namespace lejis {
namespace {

constexpr wchar_t kControlsAlone[] =
    L"<inq:LEJISIndexInquiry><lejis:InquiryControls><lejis:irrinfo>false</lejis:irrinfo></lejis:InquiryControls>"
    L"</inq:LEJISIndexInquiry>";

TEST(LejisSearchRequest, WritesTheControlsAloneWhenNew) {
    const auto request = platform::Create<LejisSearchRequest>();
    EXPECT_TRUE(SameXml(request->Write(NewDocument()).Get(), kControlsAlone));
    EXPECT_TRUE(SameXml(request->ToDocument().Get(), kControlsAlone));
}

// Filled in another order than the one in which they are written.
platform::Ref<LejisSearchRequest> RequestWithAllBlocks() {
    auto request = platform::Create<LejisSearchRequest>();
    request->AdHocInquiryArguments->QueryString = L"blue";
    request->VehicleArguments->VIN = L"V";
    request->PropertyArguments->SerialNumber = L"S";
    request->LocationArguments->City = L"ERIE";
    request->personArguments->SurName = L"P";
    return request;
}

TEST(LejisSearchRequest, WritesItsBlocksInTheirOrder) {
    const auto request = RequestWithAllBlocks();
    EXPECT_TRUE(SameXml(
        request->ToDocument().Get(),
        L"<inq:LEJISIndexInquiry>"
        L"<inq:PersonInquiryArguments><j:PersonSurName>P</j:PersonSurName><j:PersonGivenName/><j:PersonMiddleName/>"
        L"</inq:PersonInquiryArguments>"
        L"<inq:LocationInquiryArguments><j:LocationCityName>ERIE</j:LocationCityName></inq:LocationInquiryArguments>"
        L"<inq:PropertyInquiryArguments><j:PropertyCategoryText/><j:PropertyMakeName/><j:PropertyModelName/>"
        L"<j:PropertySerialID><j:ID>S</j:ID></j:PropertySerialID></inq:PropertyInquiryArguments>"
        L"<inq:VehicleInquiryArguments><j:VehicleID><j:ID>V</j:ID></j:VehicleID><ext:VehicleMakeText/>"
        L"<j:VehicleModelCodeText/><ext:VehicleStyleText/><j:VehicleColorPrimaryText/></inq:VehicleInquiryArguments>"
        L"<lejis:AdHocInquiryArguments><lejis:queryString>blue</lejis:queryString></lejis:AdHocInquiryArguments>"
        L"<lejis:InquiryControls><lejis:irrinfo>false</lejis:irrinfo></lejis:InquiryControls>"
        L"</inq:LEJISIndexInquiry>"));
}

// Two prefixes stand for one namespace; each element is written with its own.
TEST(LejisSearchRequest, WritesEachElementWithItsPrefix) {
    const auto request = RequestWithAllBlocks();
    request->InquiryControls->MaxIncidents = 7;
    request->InquiryControls->ExcludedORIIDs->AddText(L"PA0250100");
    const std::wstring written = msxml::Markup(request->ToDocument());
    EXPECT_TRUE(written.starts_with(L"<inq:LEJISIndexInquiry")) << support::Utf8(written);
    for (const wchar_t* name :
         {L"inq:PersonInquiryArguments", L"inq:LocationInquiryArguments", L"inq:PropertyInquiryArguments",
          L"inq:VehicleInquiryArguments", L"lejis:AdHocInquiryArguments", L"lejis:queryString",
          L"lejis:InquiryControls", L"lejis:irrinfo", L"lejis:maxincidents", L"lejis:excludedOriid", L"j:PersonSurName",
          L"ext:VehicleMakeText"}) {
        EXPECT_NE(std::wstring::npos, written.find(std::wstring(L"<") + name)) << support::Utf8(name);
    }
}

TEST(LejisSearchRequest, LeavesOutABlockOfBlanksButNotWordsOfBlanks) {
    const auto request = platform::Create<LejisSearchRequest>();
    request->LocationArguments->City = L" ";
    request->AdHocInquiryArguments->QueryString = L" ";
    EXPECT_TRUE(SameXml(request->ToDocument().Get(),
                        L"<inq:LEJISIndexInquiry><lejis:AdHocInquiryArguments><lejis:queryString> </lejis:queryString>"
                        L"</lejis:AdHocInquiryArguments><lejis:InquiryControls><lejis:irrinfo>false</lejis:irrinfo>"
                        L"</lejis:InquiryControls></inq:LEJISIndexInquiry>"));
}

TEST(LejisSearchRequest, BecomesTheRootOfTheDocumentOnce) {
    const auto request = platform::Create<LejisSearchRequest>();
    const auto document = NewDocument();
    request->Write(document);
    EXPECT_TRUE(support::Raises(E_FAIL, L"Only one top level element is allowed in an XML document.",
                                [&] { request->Write(document); }));
}

TEST(LejisSearchRequest, ReadsOnlyTheBlocksThatAreThere) {
    const auto request = platform::Create<LejisSearchRequest>();
    request->personArguments->SurName = L"KEPT";
    request->VehicleArguments->VIN = L"OLD";
    request->LocationArguments->ZIP = L"16501";
    request->PropertyArguments->SerialNumber = L"S";
    request->AdHocInquiryArguments->QueryString = L"blue";
    request->InquiryControls->IrrInfo = true;
    request->InquiryControls->MaxIncidents = 7;
    request->InquiryControls->ExcludedORIIDs->AddText(L"PA0250100");
    request->Read(ElementReader(
        ParseElement(L"<inq:LEJISIndexInquiry><inq:VehicleInquiryArguments><j:VehicleID><j:ID>NEW</j:ID></j:VehicleID>"
                     L"</inq:VehicleInquiryArguments></inq:LEJISIndexInquiry>")));
    EXPECT_EQ(L"KEPT", request->personArguments->SurName);
    EXPECT_EQ(L"NEW", request->VehicleArguments->VIN);
    EXPECT_EQ(L"16501", request->LocationArguments->ZIP);
    EXPECT_EQ(L"S", request->PropertyArguments->SerialNumber);
    EXPECT_EQ(L"blue", request->AdHocInquiryArguments->QueryString);
    EXPECT_TRUE(request->InquiryControls->IrrInfo);
    EXPECT_EQ(7, request->InquiryControls->MaxIncidents);
    EXPECT_EQ(1u, request->InquiryControls->ExcludedORIIDs->Count());
}

TEST(LejisSearchRequest, ReadsBackWhatItWrites) {
    const auto request = platform::Create<LejisSearchRequest>();
    request->personArguments->SurName = L"P";
    request->LocationArguments->ZIP = L"16501";
    request->PropertyArguments->SerialNumber = L"S";
    request->VehicleArguments->Year->Set(short{2004});
    request->AdHocInquiryArguments->QueryString = L"blue";
    request->InquiryControls->MaxIncidents = 25;
    const auto again = platform::Create<LejisSearchRequest>();
    again->Read(ElementReader(request->Write(NewDocument())));
    ComPtr<IXMLDOMDocument2> written = again->ToDocument();
    BSTR xml = nullptr;
    EXPECT_OK(written->get_xml(&xml));
    EXPECT_TRUE(SameXml(request->ToDocument().Get(), support::Take(xml)));
}

TEST(LejisSearchRequest, AnswersNoObjectWithThePlatformsObjectError) {
    const auto request = platform::Create<LejisSearchRequest>();
    const HRESULT result = static_cast<ILejisSearchRequest*>(request.Get())->FromXmlElement(nullptr);
    EXPECT_TRUE(support::FailedWith(result, support::kObjectRequired, L"Object required"));
}

}  // namespace
}  // namespace lejis
