// Where the simulator beside the tests listens.
#pragma once

#include <string>

namespace apartments {

std::wstring SearchAddress();
std::wstring SubmissionAddress();

}  // namespace apartments
