// One program that the kit starts, in one bitness.
#pragma once

#include "Result.h"
#include "Settings.h"

#include <string>
#include <vector>

namespace kit {

struct Run {
    std::wstring name;
    // x86 or x64: of the library that is registered meanwhile.
    std::wstring bits;
    std::wstring judge;
    bool needsSimulator = false;
    unsigned seconds = 0;
    // What is expected under Wine.
    std::string wine;
    std::wstring program;
    std::wstring arguments;
};

// Reads the runs of one bitness, in the order of the table, and fills in their paths and addresses.
std::vector<Run> ReadRuns(const Settings& settings, const std::wstring& bits);

// The result of a run whose library is registered.
Result CarryOut(const Run& run, const Settings& settings);

}  // namespace kit
