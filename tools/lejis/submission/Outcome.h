// What became of one incident.
#pragma once

#include "library/LibraryError.h"

#include <string>
#include <vector>

namespace lejis_client {

enum class Result { Done, Refused, Unreadable, TryAgain };

struct Outcome {
    Result result = Result::Done;
    std::vector<std::wstring> errors;
    std::vector<std::wstring> warnings;
    // Whether trying again can help; empty where that is no question.
    std::wstring advice;
};

// A service call that failed, in the words of the library.
Outcome FailedCall(const LibraryError& error);

}  // namespace lejis_client
