#include "platform/Text.h"

#include <gtest/gtest.h>

#include <oleauto.h>

#include <string>

namespace platform {
namespace {

class InTextOfLength : public testing::TestWithParam<size_t> {};

TEST_P(InTextOfLength, IsABstrToItsCallee) {
    std::wstring text(GetParam(), L'x');
    if (!text.empty()) text.back() = L'z';
    const InText argument(text);
    const BSTR callees = argument;
    EXPECT_EQ(text.size(), SysStringLen(callees));
    EXPECT_EQ(text, std::wstring(callees, SysStringLen(callees)));
    EXPECT_EQ(L'\0', callees[text.size()]);
}

// Around the length from which a text has memory of its own.
INSTANTIATE_TEST_SUITE_P(All, InTextOfLength, testing::Values(0, 1, 2, 124, 125, 126, 127, 5000));

TEST(InText, KeepsNullCharacters) {
    const InText argument(std::wstring_view(L"a\0b", 3));
    EXPECT_EQ(3u, SysStringLen(argument));
}

}  // namespace
}  // namespace platform
