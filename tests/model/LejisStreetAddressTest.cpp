#include "model/LejisStreetAddress.h"

#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::FailedWith;
using support::NewDocument;
using support::ParseElement;
using support::Raises;
using support::SameXml;

const support::Names kAddressTexts = {L"StreetFullText",  L"StreetName", L"StreetType", L"StreetDirection",
                                      L"StreetExtension", L"City",       L"State",      L"ZIP"};

constexpr wchar_t kEmptyStreet[] =
    L"<j:LocationStreet><j:StreetFullText/><j:StreetNumberText/><j:StreetPredirectionalText/><j:StreetName/>"
    L"<j:StreetTypeText/><j:StreetPostdirectionalText/><j:StreetExtensionText/></j:LocationStreet>";

constexpr wchar_t kFullAddress[] =
    L"<j:LocationAddress><j:LocationStreet>"
    L"<j:StreetFullText>12 N MAIN ST REAR</j:StreetFullText>"
    L"<j:StreetNumberText>12</j:StreetNumberText>"
    L"<j:StreetPredirectionalText>N</j:StreetPredirectionalText>"
    L"<j:StreetName>MAIN</j:StreetName>"
    L"<j:StreetTypeText>ST</j:StreetTypeText>"
    L"<j:StreetPostdirectionalText></j:StreetPostdirectionalText>"
    L"<j:StreetExtensionText>REAR</j:StreetExtensionText></j:LocationStreet>"
    L"<j:LocationCityName>ERIE</j:LocationCityName>"
    L"<j:LocationStateCode.ncicLSTA>PA</j:LocationStateCode.ncicLSTA>"
    L"<j:LocationPostalCodeID><j:ID>16501</j:ID></j:LocationPostalCodeID></j:LocationAddress>";

using Address = platform::Ref<LejisStreetAddress>;

std::wstring Within(const std::wstring& content) { return L"<j:Residence>" + content + L"</j:Residence>"; }

std::wstring StreetOf(const std::wstring& children) {
    return Within(L"<j:LocationAddress><j:LocationStreet>" + children +
                  L"</j:LocationStreet><j:LocationCityName>ERIE</j:LocationCityName></j:LocationAddress>");
}

Address Read(const std::wstring& xml) {
    auto address = platform::Create<LejisStreetAddress>();
    address->Read(ElementReader(ParseElement(xml)));
    return address;
}

testing::AssertionResult Writes(const Address& address, const std::wstring& xml) {
    const auto document = NewDocument();
    EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    return SameXml(address->Write(document).Get(), xml);
}

void ExpectEmpty(const Address& address) {
    support::ExpectEmptyTexts(address->Dispatch(), kAddressTexts);
    EXPECT_EQ(std::nullopt, address->StreetNumber->Number());
}

TEST(LejisStreetAddress, HasItsMembersInTheirOrder) {
    const auto address = platform::Create<LejisStreetAddress>();
    EXPECT_TRUE(support::MembersInOrder(
        address->Dispatch(), {L"StreetFullText", L"StreetName", L"StreetType", L"StreetDirection", L"StreetExtension",
                              L"City", L"State", L"ZIP", L"StreetNumber", L"ToXmlElement", L"FromXmlElement"}));
}

TEST(LejisStreetAddress, KeepsWhatItsFieldsAreGiven) {
    const auto address = platform::Create<LejisStreetAddress>();
    support::ExpectTextFields(address->Dispatch(), kAddressTexts);
    EXPECT_EQ(std::nullopt, address->StreetNumber->Number());
}

TEST(LejisStreetAddress, WritesTheStreetAndTheCityWhenEmpty) {
    EXPECT_TRUE(Writes(platform::Create<LejisStreetAddress>(), std::wstring(L"<j:LocationAddress>") + kEmptyStreet +
                                                                   L"<j:LocationCityName/></j:LocationAddress>"));
}

TEST(LejisStreetAddress, WritesAllFieldsInTheirOrder) {
    const auto address = platform::Create<LejisStreetAddress>();
    address->StreetFullText = L"12 N MAIN ST REAR";
    address->StreetName = L"MAIN";
    address->StreetType = L"ST";
    address->StreetDirection = L"N";
    address->StreetExtension = L"REAR";
    address->City = L"ERIE";
    address->State = L"PA";
    address->ZIP = L"16501";
    address->StreetNumber->Set(12);
    EXPECT_TRUE(Writes(address, kFullAddress));
    EXPECT_TRUE(Writes(address, kFullAddress));
}

TEST(LejisStreetAddress, LeavesOutABlankStateAndPostalCode) {
    const auto address = platform::Create<LejisStreetAddress>();
    address->State = L"  ";
    address->ZIP = L" ";
    EXPECT_TRUE(Writes(
        address, std::wstring(L"<j:LocationAddress>") + kEmptyStreet + L"<j:LocationCityName/></j:LocationAddress>"));
}

TEST(LejisStreetAddress, TakesNoOtherWhiteSpaceForBlanks) {
    const auto address = platform::Create<LejisStreetAddress>();
    address->State = L"\x00A0";
    EXPECT_TRUE(Writes(address, std::wstring(L"<j:LocationAddress>") + kEmptyStreet +
                                    L"<j:LocationCityName/><j:LocationStateCode.ncicLSTA>\x00A0"
                                    L"</j:LocationStateCode.ncicLSTA></j:LocationAddress>"));
}

TEST(LejisStreetAddress, WritesStateAndPostalCodeWithTheirBlanks) {
    const auto address = platform::Create<LejisStreetAddress>();
    address->State = L" PA";
    address->ZIP = L"16501 ";
    EXPECT_TRUE(Writes(address, std::wstring(L"<j:LocationAddress>") + kEmptyStreet +
                                    L"<j:LocationCityName/>"
                                    L"<j:LocationStateCode.ncicLSTA> PA</j:LocationStateCode.ncicLSTA>"
                                    L"<j:LocationPostalCodeID><j:ID>16501 </j:ID></j:LocationPostalCodeID>"
                                    L"</j:LocationAddress>"));
}

TEST(LejisStreetAddress, ReadsAllFieldsFromTheElementAroundIt) {
    const Address address = Read(Within(kFullAddress));
    EXPECT_EQ(L"12 N MAIN ST REAR", address->StreetFullText);
    EXPECT_EQ(L"MAIN", address->StreetName);
    EXPECT_EQ(L"ST", address->StreetType);
    EXPECT_EQ(L"N", address->StreetDirection);
    EXPECT_EQ(L"REAR", address->StreetExtension);
    EXPECT_EQ(L"ERIE", address->City);
    EXPECT_EQ(L"PA", address->State);
    EXPECT_EQ(L"16501", address->ZIP);
    EXPECT_EQ(12, address->StreetNumber->Number());
    EXPECT_TRUE(Writes(address, kFullAddress));
}

TEST(LejisStreetAddress, IsNotReadFromItsOwnElement) { ExpectEmpty(Read(kFullAddress)); }

TEST(LejisStreetAddress, DoesNotReadADirectionAfterTheName) {
    const Address address = Read(StreetOf(L"<j:StreetPostdirectionalText>S</j:StreetPostdirectionalText>"));
    EXPECT_EQ(L"", address->StreetDirection);
    EXPECT_EQ(L"ERIE", address->City);
}

TEST(LejisStreetAddress, ReadsTheCityWithoutAStreet) {
    const Address address = Read(
        Within(L"<j:LocationAddress><j:LocationCityName>ERIE</j:LocationCityName><j:LocationStateCode.ncicLSTA>PA"
               L"</j:LocationStateCode.ncicLSTA><j:LocationPostalCodeID><j:ID>16501</j:ID></j:LocationPostalCodeID>"
               L"</j:LocationAddress>"));
    support::ExpectEmptyTexts(
        address->Dispatch(), {L"StreetFullText", L"StreetName", L"StreetType", L"StreetDirection", L"StreetExtension"});
    EXPECT_EQ(L"ERIE", address->City);
    EXPECT_EQ(L"PA", address->State);
    EXPECT_EQ(L"16501", address->ZIP);
}

TEST(LejisStreetAddress, IsEmptyAfterAnElementWithoutAddress) {
    const Address address = Read(Within(kFullAddress));
    const auto numberBefore = address->StreetNumber;
    address->Read(ElementReader(ParseElement(L"<j:Residence><j:Other/></j:Residence>")));
    ExpectEmpty(address);
    EXPECT_EQ(numberBefore.Get(), address->StreetNumber.Get());
}

TEST(LejisStreetAddress, ClearsWhatTheElementLacks) {
    const Address address = Read(Within(kFullAddress));
    address->Read(ElementReader(ParseElement(Within(L"<j:LocationAddress><j:LocationStreet/></j:LocationAddress>"))));
    ExpectEmpty(address);
}

TEST(LejisStreetAddress, ReadsNumericHouseNumbers) {
    const auto number = [](const wchar_t* text) {
        return Read(StreetOf(std::wstring(L"<j:StreetNumberText>") + text + L"</j:StreetNumberText>"))
            ->StreetNumber->Number();
    };
    EXPECT_EQ(12, number(L"12"));
    EXPECT_EQ(12, number(L" 12 "));
    EXPECT_EQ(2, number(L"2.5"));
    EXPECT_EQ(4, number(L"3.5"));
    EXPECT_EQ(-7, number(L"-7"));
    EXPECT_EQ(2147483647, number(L"2147483647"));
    for (const wchar_t* text : {L"12A", L"", L"TWELVE", L"12 14"}) {
        EXPECT_EQ(std::nullopt, number(text)) << support::Utf8(text);
    }
}

TEST(LejisStreetAddress, FailsForAHouseNumberTooGreatAndKeepsWhatItReadBefore) {
    const Address address = Read(Within(kFullAddress));
    const auto element =
        ParseElement(StreetOf(L"<j:StreetFullText>NEW</j:StreetFullText><j:StreetNumberText>2147483648"
                              L"</j:StreetNumberText><j:StreetName>NEW</j:StreetName>"));
    EXPECT_TRUE(Raises(DISP_E_OVERFLOW, L"Overflow", [&] { address->Read(ElementReader(element)); }));
    EXPECT_EQ(L"NEW", address->StreetFullText);
    EXPECT_EQ(std::nullopt, address->StreetNumber->Number());
    EXPECT_EQ(L"", address->StreetName);
    EXPECT_EQ(L"", address->City);
}

TEST(LejisStreetAddress, ConvertsForClientsToAndFromElements) {
    const auto address = platform::Create<LejisStreetAddress>();
    Microsoft::WRL::ComPtr<IDispatch> element;
    EXPECT_OK(address->FromXmlElement(ParseElement(Within(kFullAddress)).Get()));
    EXPECT_OK(address->ToXmlElement(NewDocument().Get(), element.GetAddressOf()));
    EXPECT_TRUE(SameXml(element.Get(), kFullAddress));
    EXPECT_TRUE(FailedWith(address->FromXmlElement(nullptr), support::kInvalidArgument, L"elem cannot be Nothing"));
    EXPECT_TRUE(FailedWith(address->ToXmlElement(nullptr, element.ReleaseAndGetAddressOf()), support::kObjectRequired,
                           L"Object required"));
}

}  // namespace
}  // namespace lejis
