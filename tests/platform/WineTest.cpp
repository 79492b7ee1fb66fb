#include "platform/Wine.h"

#include "unit_support/PlayedWindows.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace platform {
namespace {

TEST(Wine, IsFoundByWhatItsOwnLibraryExports) {
    const bool exports = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    EXPECT_EQ(exports, wine::IsHere());
}

TEST(Wine, IsNowhereWhileWindowsIsPlayed) {
    const bool before = wine::IsHere();
    {
        const support::PlayedWindows windows;
        EXPECT_FALSE(wine::IsHere());
        EXPECT_FALSE(wine::CallsReleasedRequests());
        EXPECT_FALSE(wine::NeverCompletesRefusedRequests());
        EXPECT_FALSE(wine::NamesFailuresOfSendOtherwise());
        EXPECT_FALSE(wine::FailsForUnknownEncodings());
        EXPECT_FALSE(wine::ParsesWithoutValidating());
    }
    EXPECT_EQ(before, wine::IsHere());
}

}  // namespace
}  // namespace platform
