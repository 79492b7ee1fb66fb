#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

// Where the compiler sees neither what is written nor that it is too much.
void* (*volatile fill)(void*, int, size_t) = std::memset;

[[gnu::noinline]] void WriteTooMuch(size_t count) {
    char text[16];
    fill(text, 'x', count);
}

TEST(StackGuardDeathTest, EndsTheProcessWhoseStackWasOverrun) {
    EXPECT_EXIT(WriteTooMuch(64), testing::ExitedWithCode(static_cast<int>(STATUS_STACK_BUFFER_OVERRUN)), "");
}

TEST(StackGuardDeathTest, LetsAFunctionReturnThatKeptWithinItsOwn) {
    WriteTooMuch(16);
    SUCCEED();
}

}  // namespace
