#include "foundation/NullableDate.h"

#include "foundation/LejisCommon.h"
#include "platform/Conversions.h"
#include "support/ComCheck.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

struct DateCase {
    const wchar_t* given;
    const wchar_t* date;
    const wchar_t* time;
};

constexpr DateCase kDateCases[] = {
    {L"2007-03-09 14:05:00", L"2007-03-09", L"14:05:00"},
    {L"2007-03-09", L"2007-03-09", L"00:00:00"},
    {L"2007-12-31 23:59:59", L"2007-12-31", L"23:59:59"},
    {L"2008-02-29 00:00:01", L"2008-02-29", L"00:00:01"},
    {L"1999-11-10 12:00:00", L"1999-11-10", L"12:00:00"},
    {L"1899-12-29 06:00:00", L"1899-12-29", L"06:00:00"},
    {L"09:08:07", L"1899-12-30", L"09:08:07"},
    {L"9999-12-31 00:30:00", L"9999-12-31", L"00:30:00"},
    {L"0150-01-02 01:02:03", L"0150-01-02", L"01:02:03"},
};

TEST(DateText, WritesDateAndTimeOfDay) {
    for (const DateCase& row : kDateCases) {
        const auto holder = platform::Create<NullableDate>();
        holder->Set(platform::ParseDate(row.given));
        EXPECT_EQ(row.date, FormatNullableDate(*holder)) << support::Utf8(row.given);
        EXPECT_EQ(row.time, FormatNullableTime(*holder)) << support::Utf8(row.given);
    }
}

TEST(DateText, WritesEverySecondOfAnHour) {
    const auto holder = platform::Create<NullableDate>();
    for (int second = 0; second < 3600; ++second) {
        // As clients compute dates: the fraction of a day is not exact.
        holder->Set(39150 + (14 * 3600 + second) / 86400.0);
        wchar_t expected[16];
        swprintf(expected, ARRAYSIZE(expected), L"14:%02d:%02d", second / 60, second % 60);
        ASSERT_EQ(expected, FormatNullableTime(*holder));
    }
}

TEST(LejisCommon, WritesWhatTheLibraryWrites) {
    const auto common = platform::Create<LejisCommon>();
    for (const DateCase& row : kDateCases) {
        const DATE date = platform::ParseDate(row.given).value();
        BSTR text = nullptr;
        EXPECT_OK(common->LejisFormatDate(date, &text));
        EXPECT_EQ(row.date, support::Take(text));
        EXPECT_OK(common->LejisFormatTime(date, &text));
        EXPECT_EQ(row.time, support::Take(text));
    }
}

TEST(LejisCommon, ReportsDatesOutOfThePlatformsRange) {
    const auto common = platform::Create<LejisCommon>();
    BSTR text = nullptr;
    EXPECT_TRUE(support::FailedWith(common->LejisFormatDate(1e10, &text), DISP_E_OVERFLOW, L"Overflow"));
    EXPECT_EQ(nullptr, text);
    EXPECT_EQ(L"TVLejisCore.LejisCommon", support::TakeError(common->LejisFormatTime(1e10, &text)).source);
}

TEST(LejisCommon, WantsAPlaceForItsTexts) {
    const auto common = platform::Create<LejisCommon>();
    EXPECT_EQ(E_POINTER, common->LejisFormatDate(0, nullptr));
    EXPECT_EQ(E_POINTER, common->LejisFormatTime(0, nullptr));
}

}  // namespace
}  // namespace lejis
