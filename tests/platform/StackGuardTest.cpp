#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

// Where the compiler sees neither what is written nor that it is too much.
void* (*volatile fill)(void*, int, size_t) = std::memset;

// The last of the characters that it has room for.
[[gnu::noinline]] char Write(size_t count) {
    char text[16] = {};
    fill(text, 'x', count);
    return text[15];
}

TEST(StackGuardDeathTest, EndsTheProcessWhoseStackWasOverrun) {
    EXPECT_EXIT(Write(64), testing::ExitedWithCode(static_cast<int>(STATUS_STACK_BUFFER_OVERRUN)), "");
}

TEST(StackGuardDeathTest, LetsAFunctionReturnThatStaysInItsBuffer) {
    EXPECT_EQ('\0', Write(15));
    EXPECT_EQ('x', Write(16));
}

}  // namespace
