// What a clerk reads of failures that several tests expect, word for word.
#pragma once

#include <string>

namespace support {

inline const std::wstring kUnexpectedError =
    L"The LEJIS server returned an unexpected error. \r\n\r\n"
    L"Check that the correct JNET User ID is configured for your user account in Administration and that the machine "
    L"where the LEJIS Interface is running has a valid LEJIS certificate installed and configured.\r\n\r\n"
    L"If the issue persists, check the LEJISRedirector log on your LEJIS Interface machine/server.";

inline const std::wstring kUnexpectedAnswer =
    L"The LEJIS core server returned an unexpected response. This likely means the core is either experiencing planned "
    L"downtime or unexpected technical problems. \r\n"
    L"It's also possible that your LEJIS Interface settings are incorrect.";

inline std::wstring PartiallyOffline(int status) {
    return L"The LEJIS core server appears to be partially offline. It returned a " + std::to_wstring(status) +
           L" HTTP status code but did not return a valid SOAP XML response.";
}

inline std::wstring NoMessageText(int status) {
    return L"The LEJIS server returned HTTP status code " + std::to_wstring(status) + L" (no message text)";
}

}  // namespace support
