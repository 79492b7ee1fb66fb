// Whether a run has shown what it should.
#pragma once

#include "Program.h"
#include "Result.h"

#include <string>

namespace kit {

// judge, as the table of runs names it:
//   tests       a GoogleTest program, which has written its results to resultsPath
//   script      ends with code 7, its last line "END OF SCRIPT N checks on PROCESSOR" with the processor of `bits`
//   code 0      ends with code 0
//   says TEXT   ends with code 0, and TEXT is in its output
Result Judge(const std::wstring& judge, const std::wstring& bits, const Ended& ended, const std::wstring& resultsPath);

}  // namespace kit
