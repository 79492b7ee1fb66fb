#include "platform/Conversions.h"
#include "platform/Dates.h"

#include "support/ComCheck.h"
#include "support/Printing.h"
#include "unit_support/Doubles.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

#include <oleauto.h>

#include <cmath>
#include <limits>

using support::kInfinity;
using support::kNoNumber;

namespace platform {
namespace {

using support::Raises;
using support::Utf8;

TEST(Conversions, TakesTheValueOfAReference) {
    _variant_t text(L"Q1");
    _variant_t reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &text;
    EXPECT_EQ(text, Dereference(reference));
    long number = 42;
    V_VT(&reference) = VT_BYREF | VT_I4;
    V_I4REF(&reference) = &number;
    EXPECT_EQ(_variant_t(42L), Dereference(reference));
    EXPECT_EQ(_variant_t(7L), Dereference(_variant_t(7L)));
}

TEST(Conversions, RefusesAReferenceToNothing) {
    VARIANT nothing{};
    V_VT(&nothing) = VT_BYREF | VT_R8;
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] { Dereference(nothing); }));
}

TEST(Conversions, WritesValuesAsTexts) {
    EXPECT_EQ(L"", ToText(Null()));
    EXPECT_EQ(L"", ToText(_variant_t()));
    EXPECT_EQ(L" a ", ToText(_variant_t(L" a ")));
    EXPECT_EQ(L"True", ToText(_variant_t(true)));
    EXPECT_EQ(L"False", ToText(_variant_t(false)));
    EXPECT_EQ(L"-7", ToText(_variant_t(short{-7})));
    EXPECT_EQ(L"2004", ToText(_variant_t(2004L)));
    EXPECT_EQ(L"5.5", ToText(_variant_t(5.5)));
}

TEST(Conversions, RaisesTheTypeMismatchForAValueWithoutText) {
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [] { ToText(support::Nothing()); }));
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch",
                       [] { ToText(_variant_t(static_cast<long>(DISP_E_PARAMNOTFOUND), VT_ERROR)); }));
}

TEST(Conversions, ReadsDatesTimesAndBoth) {
    EXPECT_EQ(39150.0, ParseDate(L"2007-03-09"));
    EXPECT_EQ(39150.25, ParseDate(L"2007-03-09 06:00:00"));
    EXPECT_EQ(0.5, ParseDate(L"12:00:00"));
    EXPECT_EQ(39150.0, ParseDate(L" 2007-03-09 "));
    for (const wchar_t* text : {L"", L" ", L"hello", L"2007-02-30", L"25:00:00", L"2007-03-09T14:05:00"}) {
        EXPECT_EQ(std::nullopt, ParseDate(text)) << Utf8(text);
    }
}

TEST(Conversions, ReadsNumbers) {
    EXPECT_EQ(12.0, ParseNumber(L"12"));
    EXPECT_EQ(-5.5, ParseNumber(L" -5.5 "));
    EXPECT_EQ(99999.0, ParseNumber(L"99999"));
    for (const wchar_t* text : {L"", L" ", L"-", L"12A", L"1 2", L"0x10"}) {
        EXPECT_EQ(std::nullopt, ParseNumber(text)) << Utf8(text);
    }
}

TEST(Conversions, ReadsDigitsAloneAsThePlatformDoes) {
    // With as many digits as are read here, and with one more.
    for (const wchar_t* text : {L"0", L"00510", L"999999999", L"1000000000", L"0000000001", L"2147483647"}) {
        double number = 0;
        ASSERT_EQ(S_OK, VarR8FromStr(const_cast<OLECHAR*>(text), LOCALE_USER_DEFAULT, 0, &number)) << Utf8(text);
        EXPECT_EQ(number, ParseNumber(text)) << Utf8(text);
        EXPECT_EQ(static_cast<long>(number), ParseLong(text)) << Utf8(text);
    }
    EXPECT_EQ(short{7}, ParseShort(L"000000007"));
    // Digits of other scripts, which the platform does not read either.
    for (const wchar_t* text : {L"\x0661\x0662", L"1\xFF12", L"12 3a"}) {
        EXPECT_EQ(std::nullopt, ParseNumber(text)) << Utf8(text);
        EXPECT_EQ(std::nullopt, ParseShort(text)) << Utf8(text);
    }
}

TEST(Conversions, ReadsTheNumberThatATextBeginsWith) {
    constexpr struct {
        const wchar_t* text;
        double decimal;
        double number;
    } kTexts[] = {
        {L"12", 12, 12},
        {L"-5.5 x", -5.5, -5.5},
        {L"+7", 7, 7},
        {L".5", 0.5, 0.5},
        {L"5.", 5, 5},
        {L"1.2.3", 1.2, 1.2},
        {L"1,234", 1, 1},
        {L"100abc", 100, 100},
        {L"1e2", 1, 100},
        {L"1E-1x", 1, 0.1},
        {L"1e", 1, 1},
        {L"1e+", 1, 1},
        {L"e2", 0, 0},
        {L"", 0, 0},
        {L" ", 0, 0},
        {L"-", 0, 0},
        {L"- 1", 0, 0},
        {L"abc", 0, 0},
        {L"1 2", 1, 1},
        {L"0\n12 cards", 0, 0},
        {L"0\t100", 0, 0},
        {L"1 e2", 1, 1},
        {L" \t\r\n 12 34", 12, 12},
        {L"\x00A0"
         L"12",
         0, 0},
    };
    for (const auto& row : kTexts) {
        EXPECT_EQ(row.decimal, LeadingDecimal(row.text)) << Utf8(row.text);
        EXPECT_EQ(row.number, LeadingNumber(row.text)) << Utf8(row.text);
    }
}

TEST(Conversions, RaisesForALeadingNumberBeyondEveryNumber) {
    EXPECT_TRUE(Raises(DISP_E_OVERFLOW, L"Overflow", [] { LeadingNumber(L"1e400 x"); }));
}

TEST(Conversions, ReadsBooleansInAnyLetterCaseAndNumbers) {
    for (const wchar_t* text : {L"true", L"TRUE", L"True", L"1", L"-1", L" 2 ", L" true "}) {
        EXPECT_EQ(true, ParseBoolean(text)) << Utf8(text);
    }
    for (const wchar_t* text : {L"false", L"FALSE", L"0", L" FALSE "}) {
        EXPECT_EQ(false, ParseBoolean(text)) << Utf8(text);
    }
    for (const wchar_t* text : {L"", L"yes", L"no", L"on", L"T"}) {
        EXPECT_EQ(std::nullopt, ParseBoolean(text)) << Utf8(text);
    }
}

TEST(Conversions, ReadsLongsWithHalvesToTheEvenNeighbour) {
    EXPECT_EQ(12, ParseLong(L"12"));
    EXPECT_EQ(2, ParseLong(L"2.5"));
    EXPECT_EQ(4, ParseLong(L"3.5"));
    EXPECT_EQ(-2, ParseLong(L"-2.5"));
    EXPECT_EQ(2147483647, ParseLong(L"2147483647"));
    EXPECT_EQ(-2147483647 - 1, ParseLong(L"-2147483648"));
}

TEST(Conversions, RaisesForTextsThatAreNoLong) {
    EXPECT_TRUE(Raises(DISP_E_OVERFLOW, L"Overflow", [] { ParseLong(L"2147483648"); }));
    EXPECT_TRUE(Raises(DISP_E_OVERFLOW, L"Overflow", [] { ParseLong(L"-2147483649"); }));
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [] { ParseLong(L"12A"); }));
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [] { ParseLong(L""); }));
}

TEST(Conversions, ReadsShortsWithinTheirRange) {
    EXPECT_EQ(short{2004}, ParseShort(L"2004"));
    EXPECT_EQ(short{2}, ParseShort(L"2.5"));
    EXPECT_EQ(short{32767}, ParseShort(L"32767"));
    EXPECT_EQ(short{-32768}, ParseShort(L"-32768"));
    for (const wchar_t* text : {L"32768", L"-32769", L"40000", L"abc", L""}) {
        EXPECT_EQ(std::nullopt, ParseShort(text)) << Utf8(text);
    }
}

TEST(Conversions, RoundsHalvesToTheEvenNeighbour) {
    constexpr struct {
        double number;
        short rounded;
    } kNumbers[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {5.4, 5}, {5.6, 6}};
    for (const auto& row : kNumbers) {
        EXPECT_EQ(row.rounded, RoundTo<short>(_variant_t(row.number))) << row.number;
        EXPECT_EQ(long{row.rounded}, RoundTo<long>(_variant_t(row.number))) << row.number;
        EXPECT_EQ(row.rounded, RoundTo<short>(_variant_t(static_cast<float>(row.number)))) << row.number;
    }
}

TEST(Conversions, RoundsNothingBeyondTheRange) {
    EXPECT_EQ(short{32767}, RoundTo<short>(_variant_t(32767.4)));
    EXPECT_EQ(std::nullopt, RoundTo<short>(_variant_t(32768L)));
    EXPECT_EQ(std::nullopt, RoundTo<short>(_variant_t(-32769L)));
    EXPECT_EQ(2147483647L, RoundTo<long>(_variant_t(2147483647.0)));
    EXPECT_EQ(std::nullopt, RoundTo<long>(_variant_t(2147483648.0)));
    EXPECT_EQ(std::nullopt, RoundTo<long>(_variant_t(-2147483649.0)));
}

TEST(Conversions, RoundsNumbersOnly) {
    for (const double number : {kNoNumber, kInfinity, -kInfinity}) {
        EXPECT_EQ(std::nullopt, RoundTo<short>(_variant_t(number))) << number;
        EXPECT_EQ(std::nullopt, RoundTo<long>(_variant_t(number))) << number;
        EXPECT_EQ(std::nullopt, RoundTo<short>(_variant_t(static_cast<float>(number)))) << number;
        EXPECT_EQ(std::nullopt, RoundTo<long>(_variant_t(static_cast<float>(number)))) << number;
    }
}

TEST(Conversions, SplitsADateIntoCalendarAndTimeOfDay) {
    const SYSTEMTIME time = CalendarTime(ParseDate(L"2007-03-09 14:05:59").value());
    EXPECT_EQ(2007, time.wYear);
    EXPECT_EQ(3, time.wMonth);
    EXPECT_EQ(9, time.wDay);
    EXPECT_EQ(14, time.wHour);
    EXPECT_EQ(5, time.wMinute);
    EXPECT_EQ(59, time.wSecond);
    EXPECT_TRUE(Raises(DISP_E_OVERFLOW, L"Overflow", [] { CalendarTime(1e10); }));
}

TEST(Conversions, KnowsTheLocalTime) {
    SYSTEMTIME local{};
    DATE expected = 0;
    GetLocalTime(&local);
    ASSERT_TRUE(SystemTimeToVariantTime(&local, &expected));
    constexpr double kOneMinute = 1.0 / 24 / 60;
    EXPECT_NEAR(expected, Now(), kOneMinute);
}

}  // namespace
}  // namespace platform
