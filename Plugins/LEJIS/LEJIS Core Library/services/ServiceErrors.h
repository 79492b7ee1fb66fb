// The texts that the failures of both web services share.
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

// What a client learns by an event when a request could not be sent.
struct SendingFailure {
    // Else the configuration is wrong.
    bool isNetworkError;
    std::wstring message;
};
SendingFailure ToSendingFailure(const platform::ComError& error, const std::wstring& url);

}  // namespace lejis
