#include "wire_client/Program.h"

#include <gtest/gtest.h>

#include <ole2.h>
#include <windows.h>

#include <cstdio>
#include <exception>

namespace wire_client {

int Run(int count, char** arguments, const std::function<int()>& body) {
    testing::FLAGS_gtest_throw_on_failure = true;
    testing::InitGoogleTest(&count, arguments);
    if (FAILED(OleInitialize(nullptr))) return EXIT_FAILURE;
    int code = EXIT_FAILURE;
    try {
        code = body();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    OleUninitialize();
    return code;
}

}  // namespace wire_client
