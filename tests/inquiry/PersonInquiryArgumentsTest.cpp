#include "inquiry/PersonInquiryArguments.h"

#include "platform/Conversions.h"
#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::NewDocument;
using support::ParseElement;
using support::SameXml;

namespace lejis {
namespace {

std::wstring PersonBlock(const std::wstring& content) {
    return L"<inq:PersonInquiryArguments>" + content + L"</inq:PersonInquiryArguments>";
}

platform::Ref<PersonInquiryArguments> ReadPerson(const std::wstring& content) {
    auto person = platform::Create<PersonInquiryArguments>();
    person->Read(ElementReader(ParseElement(PersonBlock(content))));
    return person;
}

const std::wstring kEmptyNames = L"<j:PersonSurName/><j:PersonGivenName/><j:PersonMiddleName/>";

TEST(PersonInquiryArguments, IsEmptyWhenNewAndWithBlanksAlone) {
    const auto person = platform::Create<PersonInquiryArguments>();
    EXPECT_FALSE(person->HasContent());
    person->SurName = L"  ";
    EXPECT_FALSE(person->HasContent());
}

TEST(PersonInquiryArguments, IsNotEmptyWithAnyOfItsTexts) {
    for (platform::TextField PersonInquiryArguments::*field :
         {&PersonInquiryArguments::GivenName, &PersonInquiryArguments::MiddleName, &PersonInquiryArguments::SurName,
          &PersonInquiryArguments::SSN, &PersonInquiryArguments::DriversLicense,
          &PersonInquiryArguments::DriversLicenseState, &PersonInquiryArguments::SexNCIC,
          &PersonInquiryArguments::RaceNCIC}) {
        const auto person = platform::Create<PersonInquiryArguments>();
        (*person).*field = L" x ";
        EXPECT_TRUE(person->HasContent());
    }
}

TEST(PersonInquiryArguments, IsNotEmptyWithAnyOfItsHolders) {
    const auto born = platform::Create<PersonInquiryArguments>();
    born->BirthDate->Set(0.0);
    EXPECT_TRUE(born->HasContent());
    const auto tall = platform::Create<PersonInquiryArguments>();
    tall->Height->Set(short{0});
    EXPECT_TRUE(tall->HasContent());
    const auto heavy = platform::Create<PersonInquiryArguments>();
    heavy->Weight->Set(short{0});
    EXPECT_TRUE(heavy->HasContent());
}

TEST(PersonInquiryArguments, WritesItsNamesEvenWhenEmpty) {
    const auto person = platform::Create<PersonInquiryArguments>();
    EXPECT_TRUE(SameXml(person->Write(NewDocument()).Get(), PersonBlock(kEmptyNames)));
}

TEST(PersonInquiryArguments, WritesAllFieldsInTheirOrder) {
    const auto person = platform::Create<PersonInquiryArguments>();
    person->GivenName = L"JOHN";
    person->MiddleName = L"Q";
    person->SurName = L"PUBLIC";
    person->SSN = L"900123456";
    person->DriversLicense = L"123";
    person->DriversLicenseState = L"PA";
    person->SexNCIC = L"M";
    person->RaceNCIC = L"W";
    person->BirthDate->Set(platform::ParseDate(L"1970-02-28"));
    person->Height->Set(short{511});
    person->Weight->Set(short{180});
    EXPECT_TRUE(SameXml(
        support::Reparsed(person->Write(NewDocument()).Get()).Get(),
        PersonBlock(L"<j:PersonSurName>PUBLIC</j:PersonSurName><j:PersonGivenName>JOHN</j:PersonGivenName>"
                    L"<j:PersonMiddleName>Q</j:PersonMiddleName><j:PersonSSNID><j:ID>900123456</j:ID></j:PersonSSNID>"
                    L"<j:PersonDriverLicenseID><j:ID>123</j:ID>"
                    L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>"
                    L"<j:PersonBirthDate>1970-02-28</j:PersonBirthDate><j:PersonSexCode>M</j:PersonSexCode>"
                    L"<j:PersonRaceCode>W</j:PersonRaceCode>"
                    L"<j:PersonHeightMeasure j:personHeightUnitCode='ncic'>511</j:PersonHeightMeasure>"
                    L"<j:PersonWeightMeasure j:personWeightUnitCode='ncic'>180</j:PersonWeightMeasure>")));
}

TEST(PersonInquiryArguments, WritesEitherHalfOfTheLicence) {
    const auto state = platform::Create<PersonInquiryArguments>();
    state->DriversLicenseState = L"PA";
    EXPECT_TRUE(SameXml(state->Write(NewDocument()).Get(),
                        PersonBlock(kEmptyNames + L"<j:PersonDriverLicenseID><j:IDJurisdictionCode.ncicLSTA>PA"
                                                  L"</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>")));
    const auto number = platform::Create<PersonInquiryArguments>();
    number->DriversLicense = L"123";
    EXPECT_TRUE(
        SameXml(number->Write(NewDocument()).Get(),
                PersonBlock(kEmptyNames + L"<j:PersonDriverLicenseID><j:ID>123</j:ID></j:PersonDriverLicenseID>")));
}

TEST(PersonInquiryArguments, WritesAFieldOfBlanksAsItStands) {
    const auto person = platform::Create<PersonInquiryArguments>();
    person->SSN = L" ";
    EXPECT_TRUE(SameXml(person->Write(NewDocument()).Get(),
                        PersonBlock(kEmptyNames + L"<j:PersonSSNID><j:ID> </j:ID></j:PersonSSNID>")));
}

const std::wstring kFull =
    L"<j:PersonSurName>PUBLIC</j:PersonSurName><j:PersonGivenName>JOHN</j:PersonGivenName>"
    L"<j:PersonMiddleName>Q</j:PersonMiddleName><j:PersonSSNID><j:ID>900123456</j:ID></j:PersonSSNID>"
    L"<j:PersonDriverLicenseID><j:ID>123</j:ID>"
    L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>"
    L"<j:PersonBirthDate>1970-02-28</j:PersonBirthDate><j:PersonSexCode>M</j:PersonSexCode>"
    L"<j:PersonRaceCode>W</j:PersonRaceCode><j:PersonHeightMeasure>511</j:PersonHeightMeasure>"
    L"<j:PersonWeightMeasure>180</j:PersonWeightMeasure>";

TEST(PersonInquiryArguments, ReadsBackWhatItWrites) {
    const auto person = ReadPerson(kFull);
    EXPECT_EQ(L"PUBLIC", person->SurName);
    EXPECT_EQ(L"JOHN", person->GivenName);
    EXPECT_EQ(L"Q", person->MiddleName);
    EXPECT_EQ(L"900123456", person->SSN);
    EXPECT_EQ(L"123", person->DriversLicense);
    EXPECT_EQ(L"PA", person->DriversLicenseState);
    EXPECT_EQ(platform::ParseDate(L"1970-02-28"), person->BirthDate->Date());
    EXPECT_EQ(L"M", person->SexNCIC);
    EXPECT_EQ(L"W", person->RaceNCIC);
    EXPECT_EQ(short{511}, person->Height->Number());
    EXPECT_EQ(short{180}, person->Weight->Number());
}

TEST(PersonInquiryArguments, ReadingEmptiesWhatIsMissing) {
    const auto person = ReadPerson(kFull);
    ASSERT_TRUE(person->HasContent());
    person->Read(ElementReader(ParseElement(PersonBlock(L""))));
    EXPECT_FALSE(person->HasContent());
}

TEST(PersonInquiryArguments, ReadsBadDatesAndNumbersAsNothing) {
    const auto person = ReadPerson(kFull);
    person->Read(ElementReader(
        ParseElement(PersonBlock(L"<j:PersonBirthDate>yesterday</j:PersonBirthDate><j:PersonWeightMeasure>abc"
                                 L"</j:PersonWeightMeasure><j:PersonHeightMeasure>tall</j:PersonHeightMeasure>"))));
    EXPECT_EQ(std::nullopt, person->BirthDate->Date());
    EXPECT_EQ(std::nullopt, person->Weight->Number());
    EXPECT_EQ(std::nullopt, person->Height->Number());
}

TEST(PersonInquiryArguments, ReadsNumbersRoundedAndThoseOutOfRangeAsZero) {
    const auto person = ReadPerson(
        L"<j:PersonWeightMeasure>2.5</j:PersonWeightMeasure>"
        L"<j:PersonHeightMeasure>99999</j:PersonHeightMeasure>");
    EXPECT_EQ(short{2}, person->Weight->Number());
    EXPECT_EQ(short{0}, person->Height->Number());
}

TEST(PersonInquiryArguments, RaisesWithoutElement) {
    const auto person = platform::Create<PersonInquiryArguments>();
    const HRESULT result = static_cast<IPersonInquiryArguments*>(person.Get())->FromXmlElement(nullptr);
    EXPECT_TRUE(support::FailedWith(result, support::kInvalidArgument, L"elem cannot be Nothing"));
}

}  // namespace
}  // namespace lejis
