// The errors of both web services: the texts that they share, the failures that an event reports, and the errors that a
// submission throws.
#pragma once

#include "platform/ComError.h"

#include <string>

namespace lejis {

inline constexpr wchar_t kUnexpectedResponse[] =
    L"The LEJIS core server returned an unexpected response. This likely means the core is either experiencing planned "
    L"downtime or unexpected technical problems. \r\n"
    L"It's also possible that your LEJIS Interface settings are incorrect.";

// "Internal error -2147467259: Unspecified error"
std::wstring InternalError(const platform::ComError& error);

// "Internal error in web service code: Unspecified error"
std::wstring InternalServiceError(const platform::ComError& error);

// What an event tells the client when a request could not be sent.
struct SendingFailure {
    // Otherwise the configuration is wrong.
    bool isNetworkError;
    std::wstring message;
};
SendingFailure ToSendingFailure(const platform::ComError& error, const std::wstring& url);

// The same submission may succeed later.
platform::ComError TransientError(std::wstring description);

// The submission will not succeed as it is.
platform::ComError FatalError(std::wstring description);

bool IsSubmissionError(const platform::ComError& error);

// The error that a failed submission throws to the client in place of `error`; `step` is the step that failed.
platform::ComError SubmissionFailure(const platform::ComError& error, const std::wstring& url, int step);

// " (Line 3)"
std::wstring InLine(int step);

}  // namespace lejis
