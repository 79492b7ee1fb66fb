// Vehicle, property, location and ad hoc arguments.
#include "inquiry/LejisAdHocInquiryArguments.h"
#include "inquiry/LocationInquiryArguments.h"
#include "inquiry/PropertyInquiryArguments.h"
#include "inquiry/VehicleInquiryArguments.h"
#include "support/Printing.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

using support::NewDocument;
using support::ParseElement;
using support::SameXml;

namespace lejis {
namespace {

template <typename Block>
bool IsNotEmptyWith(platform::TextField Block::*field, const wchar_t* text) {
    const auto block = platform::Create<Block>();
    (*block).*field = text;
    return block->HasContent();
}

// Each text alone makes a block worth sending, blanks alone do not.
template <typename Block>
void ExpectEachTextCounts(std::initializer_list<platform::TextField Block::*> fields) {
    EXPECT_FALSE(platform::Create<Block>()->HasContent());
    for (platform::TextField Block::*field : fields) {
        EXPECT_TRUE(IsNotEmptyWith(field, L" x"));
        EXPECT_FALSE(IsNotEmptyWith(field, L"  "));
    }
}

TEST(VehicleInquiryArguments, IsEmptyUnlessATextOrItsYearIsThere) {
    using Block = VehicleInquiryArguments;
    ExpectEachTextCounts<Block>({&Block::Make, &Block::Model, &Block::Style, &Block::Color, &Block::LicensePlate,
                                 &Block::LicensePlateState, &Block::VIN});
    const auto vehicle = platform::Create<Block>();
    vehicle->Year->Set(short{2004});
    EXPECT_TRUE(vehicle->HasContent());
}

TEST(VehicleInquiryArguments, WritesItsFourTextsEvenWhenEmpty) {
    const auto vehicle = platform::Create<VehicleInquiryArguments>();
    vehicle->VIN = L"V";
    EXPECT_TRUE(SameXml(vehicle->Write(NewDocument()).Get(),
                        L"<inq:VehicleInquiryArguments><j:VehicleID><j:ID>V</j:ID></j:VehicleID><ext:VehicleMakeText/>"
                        L"<j:VehicleModelCodeText/><ext:VehicleStyleText/><j:VehicleColorPrimaryText/>"
                        L"</inq:VehicleInquiryArguments>"));
}

constexpr wchar_t kFullVehicle[] =
    L"<inq:VehicleInquiryArguments><j:VehicleID><j:ID>V</j:ID></j:VehicleID>"
    L"<j:VehicleLicensePlateID><j:ID>ABC</j:ID><j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA>"
    L"</j:VehicleLicensePlateID><ext:VehicleMakeText>FORD</ext:VehicleMakeText>"
    L"<j:VehicleModelCodeText>F150</j:VehicleModelCodeText><j:VehicleModelYearDate>2004</j:VehicleModelYearDate>"
    L"<ext:VehicleStyleText>PK</ext:VehicleStyleText><j:VehicleColorPrimaryText>RED</j:VehicleColorPrimaryText>"
    L"</inq:VehicleInquiryArguments>";

TEST(VehicleInquiryArguments, ReadsAndWritesAllFieldsInTheirOrder) {
    const auto vehicle = platform::Create<VehicleInquiryArguments>();
    vehicle->Read(ElementReader(ParseElement(kFullVehicle)));
    EXPECT_EQ(L"V", vehicle->VIN);
    EXPECT_EQ(L"ABC", vehicle->LicensePlate);
    EXPECT_EQ(L"PA", vehicle->LicensePlateState);
    EXPECT_EQ(L"FORD", vehicle->Make);
    EXPECT_EQ(L"F150", vehicle->Model);
    EXPECT_EQ(short{2004}, vehicle->Year->Number());
    EXPECT_EQ(L"PK", vehicle->Style);
    EXPECT_EQ(L"RED", vehicle->Color);
    EXPECT_TRUE(SameXml(vehicle->Write(NewDocument()).Get(), kFullVehicle));
}

TEST(VehicleInquiryArguments, WritesBothHalvesOfThePlateForEither) {
    const auto vehicle = platform::Create<VehicleInquiryArguments>();
    vehicle->LicensePlateState = L"PA";
    EXPECT_TRUE(SameXml(vehicle->Write(NewDocument()).Get(),
                        L"<inq:VehicleInquiryArguments><j:VehicleLicensePlateID><j:ID/>"
                        L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:VehicleLicensePlateID>"
                        L"<ext:VehicleMakeText/><j:VehicleModelCodeText/><ext:VehicleStyleText/>"
                        L"<j:VehicleColorPrimaryText/></inq:VehicleInquiryArguments>"));
}

TEST(VehicleInquiryArguments, ReadsAnInvalidYearAsNothing) {
    const auto vehicle = platform::Create<VehicleInquiryArguments>();
    vehicle->Year->Set(short{2004});
    vehicle->Read(ElementReader(
        ParseElement(L"<inq:VehicleInquiryArguments><j:VehicleModelYearDate>new</j:VehicleModelYearDate></"
                     L"inq:VehicleInquiryArguments>")));
    EXPECT_EQ(std::nullopt, vehicle->Year->Number());
}

TEST(PropertyInquiryArguments, IsEmptyUnlessATextIsThere) {
    using Block = PropertyInquiryArguments;
    ExpectEachTextCounts<Block>({&Block::Category, &Block::Make, &Block::Model, &Block::SerialNumber});
}

TEST(PropertyInquiryArguments, WritesAllItHasOnceItIsWritten) {
    const auto property = platform::Create<PropertyInquiryArguments>();
    property->SerialNumber = L"S";
    EXPECT_TRUE(SameXml(property->Write(NewDocument()).Get(),
                        L"<inq:PropertyInquiryArguments><j:PropertyCategoryText/><j:PropertyMakeName/>"
                        L"<j:PropertyModelName/><j:PropertySerialID><j:ID>S</j:ID></j:PropertySerialID>"
                        L"</inq:PropertyInquiryArguments>"));
}

constexpr wchar_t kFullProperty[] =
    L"<inq:PropertyInquiryArguments><j:PropertyCategoryText>TV</j:PropertyCategoryText>"
    L"<j:PropertyMakeName>SONY</j:PropertyMakeName><j:PropertyModelName>BRAVIA</j:PropertyModelName>"
    L"<j:PropertySerialID><j:ID>S</j:ID></j:PropertySerialID></inq:PropertyInquiryArguments>";

TEST(PropertyInquiryArguments, ReadsAndWritesAllFieldsInTheirOrder) {
    const auto property = platform::Create<PropertyInquiryArguments>();
    property->Read(ElementReader(ParseElement(kFullProperty)));
    EXPECT_EQ(L"TV", property->Category);
    EXPECT_EQ(L"SONY", property->Make);
    EXPECT_EQ(L"BRAVIA", property->Model);
    EXPECT_EQ(L"S", property->SerialNumber);
    EXPECT_TRUE(SameXml(property->Write(NewDocument()).Get(), kFullProperty));
}

TEST(LocationInquiryArguments, IsEmptyUnlessATextIsThere) {
    using Block = LocationInquiryArguments;
    ExpectEachTextCounts<Block>({&Block::StreetFullText, &Block::StreetName, &Block::City, &Block::State, &Block::ZIP});
}

TEST(LocationInquiryArguments, WritesOnlyWhatIsThereBlanksIncluded) {
    const auto location = platform::Create<LocationInquiryArguments>();
    EXPECT_TRUE(SameXml(location->Write(NewDocument()).Get(), L"<inq:LocationInquiryArguments/>"));
    location->City = L" ";
    location->ZIP = L"16501";
    EXPECT_TRUE(SameXml(location->Write(NewDocument()).Get(),
                        L"<inq:LocationInquiryArguments><j:LocationCityName> </j:LocationCityName>"
                        L"<j:LocationPostalCodeID><j:ID>16501</j:ID></j:LocationPostalCodeID>"
                        L"</inq:LocationInquiryArguments>"));
}

constexpr wchar_t kFullLocation[] =
    L"<inq:LocationInquiryArguments><j:StreetFullText>1410 PEACH</j:StreetFullText><j:StreetName>PEACH</j:StreetName>"
    L"<j:LocationCityName>ERIE</j:LocationCityName>"
    L"<j:LocationStateCode.ncicLSTA>PA</j:LocationStateCode.ncicLSTA>"
    L"<j:LocationPostalCodeID><j:ID>16501</j:ID></j:LocationPostalCodeID></inq:LocationInquiryArguments>";

TEST(LocationInquiryArguments, ReadsAndWritesAllFieldsInTheirOrder) {
    const auto location = platform::Create<LocationInquiryArguments>();
    location->Read(ElementReader(ParseElement(kFullLocation)));
    EXPECT_EQ(L"1410 PEACH", location->StreetFullText);
    EXPECT_EQ(L"PEACH", location->StreetName);
    EXPECT_EQ(L"ERIE", location->City);
    EXPECT_EQ(L"PA", location->State);
    EXPECT_EQ(L"16501", location->ZIP);
    EXPECT_TRUE(SameXml(location->Write(NewDocument()).Get(), kFullLocation));
}

template <typename Block>
void ExpectReadingEmptiesWhatIsMissing(const wchar_t* full, const wchar_t* empty) {
    const auto block = platform::Create<Block>();
    block->Read(ElementReader(ParseElement(full)));
    ASSERT_TRUE(block->HasContent());
    block->Read(ElementReader(ParseElement(empty)));
    EXPECT_FALSE(block->HasContent()) << support::Utf8(empty);
}

TEST(InquiryBlocks, AreEmptiedOfWhatIsMissingWhenTheyAreRead) {
    ExpectReadingEmptiesWhatIsMissing<VehicleInquiryArguments>(kFullVehicle, L"<inq:VehicleInquiryArguments/>");
    ExpectReadingEmptiesWhatIsMissing<PropertyInquiryArguments>(kFullProperty, L"<inq:PropertyInquiryArguments/>");
    ExpectReadingEmptiesWhatIsMissing<LocationInquiryArguments>(kFullLocation, L"<inq:LocationInquiryArguments/>");
}

TEST(LejisAdHocInquiryArguments, CountsBlanks) {
    const auto words = platform::Create<LejisAdHocInquiryArguments>();
    EXPECT_FALSE(words->HasContent());
    words->QueryString = L" ";
    EXPECT_TRUE(words->HasContent());
}

TEST(LejisAdHocInquiryArguments, ReadsItsTextOrNothing) {
    const auto words = platform::Create<LejisAdHocInquiryArguments>();
    words->Read(
        ElementReader(ParseElement(L"<lejis:AdHocInquiryArguments><lejis:queryString>blue "
                                   L"car</lejis:queryString></lejis:AdHocInquiryArguments>")));
    EXPECT_EQ(L"blue car", words->QueryString);
    words->Read(ElementReader(ParseElement(L"<lejis:AdHocInquiryArguments/>")));
    EXPECT_EQ(L"", words->QueryString);
}

}  // namespace
}  // namespace lejis
