#include "services/ServiceErrors.h"

#include "platform/http/HttpRequest.h"

#include <TVLejisCore.h>

#include <utility>

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

ComError TransientError(std::wstring description) { return ComError(tvTransientError, std::move(description)); }

ComError FatalError(std::wstring description) { return ComError(tvFatalError, std::move(description)); }

bool IsSubmissionError(const ComError& error) {
    return error.Number() == tvTransientError || error.Number() == tvFatalError;
}

ComError SubmissionFailure(const ComError& error, const std::wstring& url, int step) {
    switch (error.Number()) {
        case platform::kInvalidUrl:
            // Deliberately transient, and without a full stop.
            return TransientError(L"Invalid URL '" + url + L"'");
        case platform::kServerUnreachable:
            return TransientError(L"The LEJIS Interface service is down. It may need to be restarted.");
        case tvTransientError:
        case tvFatalError:
            return error;
        default:
            return FatalError(InternalError(error) + InLine(step));
    }
}

std::wstring InLine(int step) { return L" (Line " + std::to_wstring(step) + L")"; }

}  // namespace lejis
