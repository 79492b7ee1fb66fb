// The two kinds of errors of a failed submission, and the texts that its failures share.
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

// "Internal error -2147467259: Unspecified error"
std::wstring InternalError(const platform::ComError& error);

// "Internal error in web service code: Unspecified error"
std::wstring InternalServiceError(const platform::ComError& error);

// " (Line 3)"
std::wstring InLine(int step);

inline constexpr wchar_t kUnexpectedResponse[] =
    L"The LEJIS core server returned an unexpected response. This likely means the core is either experiencing planned "
    L"downtime or unexpected technical problems. \r\n"
    L"It's also possible that your LEJIS Interface settings are incorrect.";

}  // namespace lejis
