#include "inquiry/LejisInquiryControls.h"

#include "platform/Conversions.h"
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

std::wstring ControlsBlock(const std::wstring& content) {
    return L"<lejis:InquiryControls>" + content + L"</lejis:InquiryControls>";
}

TEST(LejisInquiryControls, AreNeverEmpty) { EXPECT_TRUE(platform::Create<LejisInquiryControls>()->HasContent()); }

TEST(LejisInquiryControls, WriteTheirFlagAlways) {
    const auto controls = platform::Create<LejisInquiryControls>();
    EXPECT_TRUE(SameXml(controls->Write(NewDocument()).Get(), ControlsBlock(L"<lejis:irrinfo>false</lejis:irrinfo>")));
    controls->IrrInfo = true;
    EXPECT_TRUE(SameXml(controls->Write(NewDocument()).Get(), ControlsBlock(L"<lejis:irrinfo>true</lejis:irrinfo>")));
}

TEST(LejisInquiryControls, WriteALimitAboveZeroOnly) {
    const auto controls = platform::Create<LejisInquiryControls>();
    for (const long none : {0L, -5L}) {
        controls->MaxIncidents = none;
        EXPECT_TRUE(
            SameXml(controls->Write(NewDocument()).Get(), ControlsBlock(L"<lejis:irrinfo>false</lejis:irrinfo>")));
    }
    controls->MaxIncidents = 25;
    EXPECT_TRUE(
        SameXml(controls->Write(NewDocument()).Get(),
                ControlsBlock(L"<lejis:irrinfo>false</lejis:irrinfo><lejis:maxincidents>25</lejis:maxincidents>")));
}

TEST(LejisInquiryControls, WriteEachExcludedAgencyAsItStands) {
    const auto controls = platform::Create<LejisInquiryControls>();
    controls->ExcludedORIIDs->AddText(L"A");
    controls->ExcludedORIIDs->AddText(L"A");
    controls->ExcludedORIIDs->AddText(L"");
    EXPECT_OK(controls->ExcludedORIIDs->Add(_variant_t(12L)));
    EXPECT_TRUE(
        SameXml(controls->Write(NewDocument()).Get(),
                ControlsBlock(L"<lejis:irrinfo>false</lejis:irrinfo><lejis:excludedOriid>A</lejis:excludedOriid>"
                              L"<lejis:excludedOriid>A</lejis:excludedOriid><lejis:excludedOriid/>"
                              L"<lejis:excludedOriid>12</lejis:excludedOriid>")));
}

TEST(LejisInquiryControls, ReadEverythingButExactlyFalseAsTrue) {
    const auto controls = platform::Create<LejisInquiryControls>();
    const std::wstring limit = L"<lejis:maxincidents>10</lejis:maxincidents>";
    for (const wchar_t* text : {L"FALSE", L"0", L"", L"true", L"no"}) {
        controls->IrrInfo = false;
        controls->Read(ElementReader(
            ParseElement(ControlsBlock(L"<lejis:irrinfo>" + std::wstring(text) + L"</lejis:irrinfo>" + limit))));
        EXPECT_TRUE(controls->IrrInfo) << support::Utf8(text);
    }
    for (const wchar_t* flag : {L"<lejis:irrinfo>false</lejis:irrinfo>", L""}) {
        controls->IrrInfo = true;
        controls->Read(ElementReader(ParseElement(ControlsBlock(flag + limit))));
        EXPECT_FALSE(controls->IrrInfo);
        EXPECT_EQ(10, controls->MaxIncidents);
    }
}

TEST(LejisInquiryControls, ReadReplacesTheAgencies) {
    const auto controls = platform::Create<LejisInquiryControls>();
    controls->ExcludedORIIDs->AddText(L"OLD");
    const platform::Ref<Collection> before = controls->ExcludedORIIDs;
    controls->Read(ElementReader(ParseElement(
        ControlsBlock(L"<lejis:maxincidents>1</lejis:maxincidents><lejis:excludedOriid>B</lejis:excludedOriid>"
                      L"<lejis:excludedOriid>A</lejis:excludedOriid>"))));
    ASSERT_EQ(2u, controls->ExcludedORIIDs->Count());
    EXPECT_EQ(L"B", platform::ToText(controls->ExcludedORIIDs->Item(1)));
    EXPECT_EQ(L"A", platform::ToText(controls->ExcludedORIIDs->Item(2)));
    EXPECT_EQ(1u, before->Count());
}

TEST(LejisInquiryControls, ReadRaisesForAnInvalidLimitAfterTheFlagIsSet) {
    for (const wchar_t* limit : {L"", L"<lejis:maxincidents/>", L"<lejis:maxincidents>ten</lejis:maxincidents>"}) {
        const auto controls = platform::Create<LejisInquiryControls>();
        controls->MaxIncidents = 7;
        controls->ExcludedORIIDs->AddText(L"KEPT");
        EXPECT_TRUE(support::Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] {
            controls->Read(ElementReader(
                ParseElement(ControlsBlock(L"<lejis:irrinfo>true</lejis:irrinfo>" + std::wstring(limit)))));
        }));
        EXPECT_TRUE(controls->IrrInfo);
        EXPECT_EQ(7, controls->MaxIncidents);
        EXPECT_EQ(1u, controls->ExcludedORIIDs->Count());
    }
}

}  // namespace
}  // namespace lejis
