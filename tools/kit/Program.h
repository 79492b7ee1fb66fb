// Another program, run to its end or to the end of its time.
#pragma once

#include <windows.h>

#include <string>

namespace kit {

struct Ended {
    // Windows' reason why the program did not start; 0 for one that did.
    DWORD startError = 0;
    bool withinItsTime = false;
    DWORD code = 0;
    double seconds = 0;
    // Both of its outputs.
    std::string output;
};

// The output goes through a file, outputPath. A program that takes longer is ended, with all that it has started.
Ended RunProgram(const std::wstring& commandLine, const std::wstring& outputPath, DWORD seconds);

}  // namespace kit
