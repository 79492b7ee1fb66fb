// The two kinds of errors of a failed submission.
#pragma once

#include "platform/ComError.h"

#include <string>

namespace lejis {

// The same submission may succeed later.
platform::ComError TransientError(std::wstring description);

// The submission will not succeed as it is.
platform::ComError FatalError(std::wstring description);

bool IsSubmissionError(const platform::ComError& error);

// What a failed submission raises to the client for an error met on the way; `step` is the one that failed.
platform::ComError SubmissionFailure(const platform::ComError& error, const std::wstring& url, int step);

// " (Line 3)"
std::wstring InLine(int step);

}  // namespace lejis
