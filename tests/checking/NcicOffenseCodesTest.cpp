#include "checking/NcicOffenseCodes.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace lejis {
namespace {

using LejisUtils::GetNcicOffenseCodes;
using LejisUtils::IsNcicOffenseCode;

struct Group {
    std::wstring_view digits;
    size_t size;
    // The last two digits of the codes, runs of them written with a hyphen.
    const wchar_t* codes;
    // The literal of the code ending in 99; null where the group has none.
    const wchar_t* general;
};

constexpr Group kGroups[] = {
    {L"01", 7, L"01-06 99", L"SOVEREIGNTY"},
    {L"02", 2, L"01 99", L"MILITARY"},
    {L"03", 4, L"01-03 99", L"IMMIGRATION"},
    {L"09", 14, L"01-13 99", L"HOMICIDE"},
    {L"10", 14, L"01-11 20-21 99", L"KIDNAPPING"},
    {L"11", 25, L"01-23 98-99", L"SEX ASSAULT"},
    {L"12", 13, L"01-12 99", L"ROBBERY"},
    {L"13", 17, L"01-16 99", L"ASSAULT"},
    {L"14", 5, L"01-04 99", L"ABORTION"},
    {L"16", 2, L"01-02", nullptr},
    {L"17", 2, L"01-02", nullptr},
    {L"20", 10, L"01-09 99", L"ARSON"},
    {L"21", 6, L"01-05 99", L"EXTORTION"},
    {L"22", 8, L"01-07 99", L"BURGLARY"},
    {L"23", 17, L"01-16 99", L"LARCENY"},
    {L"24", 12, L"01-11 99", L"STOLEN VEHICLE"},
    {L"25", 13, L"01-11 89 99", L"COUNTERFEITING"},
    {L"26", 10, L"01-09 99", L"FRAUD"},
    {L"27", 6, L"01-05 99", L"EMBEZZLE"},
    {L"28", 6, L"01-05 99", L"STOLEN PROPERTY"},
    {L"29", 7, L"01-06 99", L"DAMAGE PROPERTY"},
    {L"35", 36, L"01-05 10-13 20-23 30-33 40-43 50 60-64 70-73 80-83 99", L"DANGEROUS DRUGS"},
    {L"36", 23, L"01-22 99", L"SEX OFFENSE"},
    {L"37", 9, L"00-07 99", L"OBSCENITY"},
    {L"38", 13, L"01-12 99", L"FAMILY OFFENSE"},
    {L"39", 19, L"01-02 04-05 07-16 18-21 99", L"GAMBLING"},
    {L"40", 10, L"01-09 99", L"COMMERCIAL SEX"},
    {L"41", 5, L"01-04 99", L"LIQUOR"},
    {L"48", 14, L"01-13 99", L"OBSTRUCT POLICE"},
    {L"49", 5, L"01-04 99", L"FLIGHT-ESCAPE"},
    {L"50", 17, L"01-16 99", L"OBSTRUCT SEE MIS"},
    {L"51", 14, L"01-13 99", L"BRIBERY"},
    {L"52", 18, L"01-17 99", L"WEAPON OFFENSE"},
    {L"53", 11, L"01-07 09-11 99", L"PUBLIC PEACE"},
    {L"54", 5, L"01-04 99", L"TRAFFIC OFFENSE"},
    {L"55", 10, L"01-03 10-12 20-22 99", L"HEALTH - SAFETY"},
    {L"56", 1, L"99", L"CIVIL RIGHTS"},
    {L"57", 9, L"01-08 99", L"INVADE PRIVACY"},
    {L"58", 4, L"01-03 99", L"SMUGGLING"},
    {L"59", 1, L"99", L"ELECTION LAWS"},
    {L"60", 1, L"99", L"ANTITRUST"},
    {L"61", 4, L"01-03 99", L"TAX REVENUE"},
    {L"62", 6, L"01-05 99", L"CONSERVATION"},
    {L"63", 1, L"00", nullptr},
    {L"64", 11, L"01-10 99", L"EXPLOITATION/ENTICEMENT"},
    {L"70", 1, L"99", L"CRIMES AGAINST PERSON SEE MIS"},
    {L"71", 1, L"99", L"PROPERTY CRIMES SEE MIS"},
    {L"72", 1, L"99", L"MORALS - DECENCY CRIMES SEE MIS"},
    {L"73", 1, L"99", L"PUBLIC ORDER CRIMES SEE MIS"},
    {L"80", 4, L"01 03-05", nullptr},
    {L"81", 3, L"00-02", nullptr},
};

std::wstring TwoDigits(int number) { return (number < 10 ? L"0" : L"") + std::to_wstring(number); }

// All codes of a group, from its digits and runs.
std::vector<std::wstring> CodesOf(const Group& group) {
    std::vector<std::wstring> codes;
    for (std::wstring_view rest = group.codes; !rest.empty(); rest.remove_prefix(std::min<size_t>(1, rest.size()))) {
        const std::wstring run(rest.substr(0, rest.find(L' ')));
        rest.remove_prefix(run.size());
        const int first = std::stoi(run.substr(0, 2));
        const int last = std::stoi(run.substr(run.size() - 2));
        for (int code = first; code <= last; ++code) codes.push_back(std::wstring(group.digits) + TwoDigits(code));
    }
    return codes;
}

std::wstring_view LiteralOf(std::wstring_view code) {
    for (const auto& row : GetNcicOffenseCodes()) {
        if (row.code == code) return row.literal;
    }
    return L"(not there)";
}

TEST(NcicOffenseCodes, AreExactlyTheListedOnesInAscendingOrder) {
    std::vector<std::wstring> expected;
    for (const Group& group : kGroups) {
        const auto codes = CodesOf(group);
        EXPECT_EQ(group.size, codes.size()) << support::Utf8(std::wstring(group.digits));
        expected.insert(expected.end(), codes.begin(), codes.end());
    }
    std::vector<std::wstring> held;
    for (const auto& row : GetNcicOffenseCodes()) held.emplace_back(row.code);
    EXPECT_EQ(458u, held.size());
    EXPECT_EQ(expected, held);
}

TEST(NcicOffenseCodes, CarryTheGeneralEntriesOfTheirGroups) {
    for (const Group& group : kGroups) {
        const std::wstring code = std::wstring(group.digits) + L"99";
        EXPECT_EQ(group.general ? group.general : L"(not there)", LiteralOf(code)) << support::Utf8(code);
    }
}

TEST(NcicOffenseCodes, CarryTheirLiterals) {
    constexpr LejisUtils::NcicOffenseCode kRows[] = {
        {L"0101", L"TREASON"},
        {L"0102", L"TREASON MISPRISION"},
        {L"0103", L"ESPIONAGE"},
        {L"0901", L"HOMICIDE - WILLFUL KILL-FAMILY-GUN"},
        {L"1313", L"SIMPLE ASSLT"},
        {L"2301", L"POCKETPICKING"},
        {L"3613", L"SEX OFFENDER REGISTRATION VIOLATION(SEE MIS)"},
        {L"4801", L"RESISTING OFFICER"},
        {L"6300", L"MONEY LAUNDERING"},
        {L"8001", L"SUBJECT IS A THREAT TO A U.S. SECRET SERVICE PROTECTEE"},
        {L"8004", L"ALIEN UNLAWFULLY PRESENT DUE TO ORDER OF REMOVAL OR EXCLUSION FROM THE USA"},
        {L"8100", L"ESCAPE FROM CUSTODY"},
        {L"8102", L"ABSCOND WHILE ON PROBATION"},
    };
    for (const auto& row : kRows) EXPECT_EQ(row.literal, LiteralOf(row.code));
}

TEST(NcicOffenseCodes, CarryEachOfTheseLiteralsSomewhere) {
    for (const wchar_t* literal :
         {L"AGGRAV ASSLT - FAMILY-GUN", L"BURGL - FORCED ENTRY-RESID", L"POSSESS FORGED - SEE MIS"}) {
        EXPECT_EQ(1, std::ranges::count(GetNcicOffenseCodes(), std::wstring_view(literal),
                                        &LejisUtils::NcicOffenseCode::literal))
            << support::Utf8(literal);
    }
}

TEST(NcicOffenseCodes, HaveLiteralsInUpperCaseWithoutRepetition) {
    std::set<std::wstring_view> seen;
    size_t shortest = 99;
    size_t longest = 0;
    for (const auto& row : GetNcicOffenseCodes()) {
        EXPECT_TRUE(seen.insert(row.literal).second) << support::Utf8(std::wstring(row.literal));
        EXPECT_TRUE(std::ranges::none_of(row.literal, [](wchar_t one) { return one >= L'a' && one <= L'z'; }));
        EXPECT_NE(L' ', row.literal.front());
        EXPECT_NE(L' ', row.literal.back());
        shortest = std::min(shortest, row.literal.size());
        longest = std::max(longest, row.literal.size());
    }
    EXPECT_EQ(4u, shortest);
    EXPECT_EQ(74u, longest);
}

TEST(NcicOffenseCodes, AreFoundAsTheyStandAndInNoOtherForm) {
    for (const auto& row : GetNcicOffenseCodes()) EXPECT_TRUE(IsNcicOffenseCode(row.code));
    for (const wchar_t* code : {L"0101", L"3700", L"7399", L"8102"}) {
        EXPECT_TRUE(IsNcicOffenseCode(code)) << support::Utf8(code);
    }
    for (const wchar_t* code : {L"", L" ", L"0", L"101", L" 0101", L"0101 ", L"00101", L"01010", L"0100", L"0107",
                                L"1599", L"8002", L"8103", L"9999", L"TREASON", L"0101\t"}) {
        EXPECT_FALSE(IsNcicOffenseCode(code)) << support::Utf8(code);
    }
}

TEST(NcicOffenseCodes, AreOneTable) { EXPECT_EQ(GetNcicOffenseCodes().data(), GetNcicOffenseCodes().data()); }

}  // namespace
}  // namespace lejis
