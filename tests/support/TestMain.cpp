// Every test runs in a single-threaded apartment, as the library's clients do.
#include <gtest/gtest.h>

#include <ole2.h>
#include <windows.h>

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (FAILED(OleInitialize(nullptr))) return EXIT_FAILURE;
    const int result = RUN_ALL_TESTS();
    OleUninitialize();
    return result;
}
