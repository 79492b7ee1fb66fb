#include "platform/Dates.h"

#include <gtest/gtest.h>

#include <oleauto.h>

#include <cstdio>
#include <string>

namespace platform {
namespace {

std::optional<DATE> ByPlatform(const std::wstring& text, LCID locale) {
    DATE date = 0;
    if (FAILED(VarDateFromStr(const_cast<OLECHAR*>(text.c_str()), locale, LOCALE_NOUSEROVERRIDE, &date))) {
        return std::nullopt;
    }
    return date;
}

std::wstring Text(const wchar_t* form, int one, int two, int three) {
    wchar_t text[32];
    std::swprintf(text, ARRAYSIZE(text), form, one, two, three);
    return text;
}

class IsoDateInLocale : public testing::TestWithParam<WORD> {
protected:
    static LCID Locale() { return MAKELCID(GetParam(), SORT_DEFAULT); }
};

TEST_P(IsoDateInLocale, IsThatOfThePlatformOnEveryDay) {
    for (const int year : {1900, 1929, 1930, 1999, 2000, 2007, 2024, 2100, 9999}) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= 31; ++day) {
                const std::wstring text = Text(L"%04d-%02d-%02d", year, month, day);
                const auto date = ParseIsoDate(text);
                // A day that does not exist is left to the platform, which may find another reading.
                if (date) {
                    EXPECT_EQ(ByPlatform(text, Locale()), date) << year << "-" << month << "-" << day;
                }
            }
        }
    }
}

TEST_P(IsoDateInLocale, IsThatOfThePlatformAtEveryTime) {
    for (int hour = 0; hour < 24; ++hour) {
        for (const int minute : {0, 1, 15, 59}) {
            for (const int second : {0, 1, 29, 30, 31, 59}) {
                const std::wstring text = L"2007-03-08 " + Text(L"%02d:%02d:%02d", hour, minute, second);
                const auto date = ParseIsoDate(text);
                ASSERT_TRUE(date);
                EXPECT_EQ(ByPlatform(text, Locale()), date) << hour << ":" << minute << ":" << second;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, IsoDateInLocale,
    testing::Values(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_UK),
                    MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH),
                    MAKELANGID(LANG_SPANISH, SUBLANG_SPANISH_MEXICAN), MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT),
                    MAKELANGID(LANG_SWEDISH, SUBLANG_SWEDISH)));

TEST(IsoDate, LeavesEveryOtherFormToThePlatform) {
    for (const wchar_t* text :
         {L"", L"2007-3-8", L"2007/03/08", L"03-08-2007", L"2007-03-08T23:15:00", L"2007-03-08 23:15", L"2007-03-08 ",
          L" 2007-03-08", L"2007-03-08 23:15:00.5", L"2007-03-08  3:15:00", L"+007-03-08", L"2007-03-0\x0663"}) {
        EXPECT_EQ(std::nullopt, ParseIsoDate(text)) << testing::PrintToString(std::wstring(text));
    }
}

TEST(IsoDate, LeavesDaysAndTimesThatDoNotExistToThePlatform) {
    for (const wchar_t* text :
         {L"2007-02-29", L"1900-02-29", L"2007-13-01", L"2007-00-01", L"2007-01-00", L"2007-04-31", L"1899-12-31",
          L"0007-03-08", L"2007-03-08 24:00:00", L"2007-03-08 23:60:00", L"2007-03-08 23:59:60"}) {
        EXPECT_EQ(std::nullopt, ParseIsoDate(text)) << testing::PrintToString(std::wstring(text));
    }
    EXPECT_TRUE(ParseIsoDate(L"2000-02-29"));
    EXPECT_TRUE(ParseIsoDate(L"1900-01-01"));
    EXPECT_TRUE(ParseIsoDate(L"9999-12-31 23:59:59"));
}

}  // namespace
}  // namespace platform
