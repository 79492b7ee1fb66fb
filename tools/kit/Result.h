// What was seen of one run.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kit {

inline constexpr std::string_view kPassed = "passed";
inline constexpr std::string_view kFailed = "failed";
inline constexpr std::string_view kNotRun = "not run";
// The end of a point some of whose runs passed, and others were not run.
inline constexpr std::string_view kInPart = "in part";

struct FailedTest {
    std::string name;
    std::string text;
};

struct Result {
    std::string_view status;
    std::string seen;
    std::vector<FailedTest> failedTests = {};
    // The output of a run that failed.
    std::string output = {};
    double seconds = 0;
};

Result NotRun(std::string reason);

}  // namespace kit
