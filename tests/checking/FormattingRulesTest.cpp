// Codes and numbers, each at its limit and one step beyond; texts stand in FormattingRulesTextLimitsTest.cpp.
#include "checking/FormattingRules.h"

#include "checking/FormattedRecords.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::Utf8;

TEST(FormattingRules, EmptyAnOffenseCodeThatIsNotInTheTable) {
    for (const wchar_t* code : {L"9999", L"101", L" ", L"    ", L" 0101", L"0101 ", L"0100"}) {
        Records records;
        records.incident->ChargeNCICCode = code;
        records.person->ChargeNCICCode = code;
        const std::wstring message = std::wstring(L"Charge NCIC code '") + code +
                                     L"' is not a valid NCIC offense code. Will submit a blank code instead.";
        EXPECT_EQ((Warnings{L"Main record: " + message, L"  (Suspect): " + message}), records.Apply());
        EXPECT_EQ(L"", records.incident->ChargeNCICCode);
        EXPECT_EQ(L"", records.person->ChargeNCICCode);
    }
    for (const wchar_t* code : {L"0101", L"8102", L""}) {
        Records records;
        records.incident->ChargeNCICCode = code;
        EXPECT_EQ(Warnings{}, records.Apply());
        EXPECT_EQ(code, records.incident->ChargeNCICCode);
    }
}

TEST(FormattingRules, ReplaceRaceCodesThatAreNotNcics) {
    for (const wchar_t* code : {L"A", L"B", L"I", L"U", L"W", L""}) {
        Records records;
        records.person->RaceNCIC = code;
        EXPECT_EQ(Warnings{}, records.Apply()) << Utf8(code);
        EXPECT_EQ(code, records.person->RaceNCIC);
    }
    for (const wchar_t* code : {L"X", L"w", L"AB", L"ABIUW", L" ", L"M"}) {
        Records records;
        records.person->RaceNCIC = code;
        EXPECT_EQ(Warnings{std::wstring(L"  (Suspect): '") + code +
                           L"' is not a valid NCIC race code, will submit 'U' (Unknown) instead. Check Race Selection "
                           L"List settings in Administration and verify that NCIC Codes are set correctly."},
                  records.Apply());
        EXPECT_EQ(L"U", records.person->RaceNCIC);
    }
}

TEST(FormattingRules, ReplaceSexCodesThatAreNotNcics) {
    for (const wchar_t* code : {L"M", L"F", L"U", L""}) {
        Records records;
        records.person->SexNCIC = code;
        EXPECT_EQ(Warnings{}, records.Apply()) << Utf8(code);
        EXPECT_EQ(code, records.person->SexNCIC);
    }
    for (const wchar_t* code : {L"X", L"m", L"MF", L" ", L"W"}) {
        Records records;
        records.person->SexNCIC = code;
        EXPECT_EQ(Warnings{std::wstring(L"  (Suspect): '") + code +
                           L"' is not a valid NCIC sex code, will submit 'U' (Unknown) instead. Check Sex Selection "
                           L"List settings in Administration and verify that NCIC Codes are set correctly."},
                  records.Apply());
        EXPECT_EQ(L"U", records.person->SexNCIC);
    }
}

TEST(FormattingRules, DropWeightsOutOfRange) {
    for (const short weight : {short{0}, short{180}, short{999}}) {
        Records records;
        records.person->Weight->Set(weight);
        EXPECT_EQ(Warnings{}, records.Apply());
        EXPECT_EQ(weight, records.person->Weight->Number());
    }
    for (const short weight : {short{1000}, short{32767}, short{-1}, short{-5}}) {
        Records records;
        records.person->Weight->Set(weight);
        EXPECT_EQ(Warnings{L"  (Suspect): The specified weight '" + std::to_wstring(weight) +
                           L" lbs.' is too large. The maximum for LEJIS is 999 lbs. Will not submit weight "
                           L"information."},
                  records.Apply());
        EXPECT_EQ(std::nullopt, records.person->Weight->Number());
    }
}

TEST(FormattingRules, DropVehicleYearsBefore1900) {
    for (const short year : {short{1900}, short{2004}, short{32767}}) {
        Records records;
        records.vehicle->Year->Set(year);
        EXPECT_EQ(Warnings{}, records.Apply());
        EXPECT_EQ(year, records.vehicle->Year->Number());
    }
    for (const short year : {short{1899}, short{0}, short{-1}}) {
        Records records;
        records.vehicle->Year->Set(year);
        EXPECT_EQ(Warnings{L"Vehicle     : '" + std::to_wstring(year) +
                           L"' is not a valid vehicle year (was before 1900). Will not submit vehicle year."},
                  records.Apply());
        EXPECT_EQ(std::nullopt, records.vehicle->Year->Number());
    }
}

TEST(FormattingRules, DropStreetNumbersOfMoreThanSixCharacters) {
    for (const long number : {0L, 123456L, 999999L, -99999L}) {
        Records records;
        records.incident->Location->StreetNumber->Set(number);
        EXPECT_EQ(Warnings{}, records.Apply());
        EXPECT_EQ(number, records.incident->Location->StreetNumber->Number());
    }
    for (const long number : {1234567L, 1000000L, -100000L, 2147483647L}) {
        Records records;
        records.person->address->StreetNumber->Set(number);
        const std::wstring text = std::to_wstring(number);
        EXPECT_EQ(Warnings{L"  (Suspect): Street address number '" + text + L"' was too long (" +
                           std::to_wstring(text.size()) + L" characters) and was not submitted."},
                  records.Apply());
        EXPECT_EQ(std::nullopt, records.person->address->StreetNumber->Number());
    }
}

TEST(FormattingRules, ShortenZipsOfExactlyNineCharacters) {
    Records records;
    records.incident->Location->ZIP = L"123456789";
    records.person->address->ZIP = L"ABCDEFGHI";
    EXPECT_EQ((Warnings{L"Main record: 9-digit ZIP code '123456789' will be sent as '12345'",
                        L"  (Suspect): 9-digit ZIP code 'ABCDEFGHI' will be sent as 'ABCDE'"}),
              records.Apply());
    EXPECT_EQ(L"12345", records.incident->Location->ZIP);
    EXPECT_EQ(L"ABCDE", records.person->address->ZIP);
    for (const wchar_t* zip : {L"", L"12345", L"12345678", L"12345-6789"}) {
        records.incident->Location->ZIP = zip;
        EXPECT_EQ(Warnings{}, records.Apply()) << Utf8(zip);
        EXPECT_EQ(zip, records.incident->Location->ZIP);
    }
}

TEST(FormattingRules, OnlyWarnOfALongCaution) {
    Records records;
    const std::wstring longest(200, L'x');
    records.person->SubjectCautionInformationCaveat = longest;
    EXPECT_EQ(Warnings{}, records.Apply());
    records.person->SubjectCautionInformationCaveat = longest + L'y';
    EXPECT_EQ(Warnings{L"  (Suspect): Caution information cannot be more than 200 characters. '" + longest +
                       L"y' is 201 characters long."},
              records.Apply());
    EXPECT_EQ(longest + L'y', records.person->SubjectCautionInformationCaveat);
}

}  // namespace
}  // namespace lejis
