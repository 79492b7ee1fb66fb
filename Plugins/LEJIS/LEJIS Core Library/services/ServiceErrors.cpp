#include "services/ServiceErrors.h"

#include "platform/http/HttpRequest.h"

using platform::ComError;

namespace lejis {

std::wstring InternalError(const ComError& error) {
    return L"Internal error " + std::to_wstring(error.Number()) + L": " + error.Description();
}

std::wstring InternalServiceError(const ComError& error) {
    return L"Internal error in web service code: " + error.Description();
}

SendingFailure ToSendingFailure(const ComError& error, const std::wstring& url) {
    switch (error.Number()) {
        case platform::kInvalidUrl:
            // With a full stop at its end, unlike the text of a submission that is waited for.
            return {false, L"Invalid URL '" + url + L"'."};
        case platform::kServerUnreachable:
            return {true, L"The server is down."};
        default:
            return {false, InternalError(error)};
    }
}

}  // namespace lejis
