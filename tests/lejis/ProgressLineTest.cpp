#include "console/Progress.h"

#include <gtest/gtest.h>

namespace lejis_client {
namespace {

// The line without the blanks that wipe out a longer line before it.
std::wstring Line(std::size_t done, std::size_t tried, std::size_t total, ULONGLONG milliseconds) {
    const std::wstring line = ProgressLine(done, tried, total, milliseconds, L"a.xml");
    EXPECT_EQ(79u, line.size());
    return line.substr(0, line.find_last_not_of(L' ') + 1);
}

TEST(ProgressLine, ShowsPaceAndRemainingTime) {
    EXPECT_EQ(L"[##########..........] 50/100  25.0/s, 0:02 left  a.xml", Line(50, 50, 100, 2000));
    EXPECT_EQ(L"[#...................] 10/200  0.5/s, 6:20 left  a.xml", Line(10, 10, 200, 20000));
}

TEST(ProgressLine, CountsWhatWasLeftOutForNoPace) {
    EXPECT_EQ(L"[##########..........] 50/100  5.0/s, 0:10 left  a.xml", Line(50, 10, 100, 2000));
}

TEST(ProgressLine, ShowsNoPaceBeforeTheFirstResult) {
    EXPECT_EQ(L"[....................] 0/4  a.xml", Line(0, 0, 4, 1000));
    EXPECT_EQ(L"[##########..........] 2/4  a.xml", Line(2, 0, 4, 1000));
    EXPECT_EQ(L"[##########..........] 2/4  a.xml", Line(2, 2, 4, 0));
}

}  // namespace
}  // namespace lejis_client
