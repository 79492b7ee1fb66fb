#include "doctor/WebFailureText.h"

#include "text/WindowsText.h"

#include <wininet.h>

namespace lejis_client {
namespace {

constexpr wchar_t kCertificateCure[] =
    L"Ask the administrator of the LEJIS Interface for a valid certificate, or install its issuer's on this machine.";

struct Row {
    DWORD error;
    const wchar_t* reason;
    const wchar_t* cure;
};

constexpr Row kRows[] = {
    {ERROR_INTERNET_NAME_NOT_RESOLVED, L"no machine of this name is known",
     L"Correct the name in the address, or look at this machine's network and name service."},
    {ERROR_INTERNET_CANNOT_CONNECT, L"the machine takes no connection at this port",
     L"See that the LEJIS Interface runs, that the port in the address is right, and that no firewall is between."},
    {ERROR_INTERNET_TIMEOUT, L"no answer came in time",
     L"See that the LEJIS Interface runs and that no firewall or proxy is between."},
    {ERROR_INTERNET_CONNECTION_ABORTED, L"the connection was cut off", L"Look at the LEJIS Interface's log."},
    {ERROR_INTERNET_CONNECTION_RESET, L"the connection was cut off", L"Look at the LEJIS Interface's log."},
    {ERROR_HTTP_INVALID_SERVER_RESPONSE, L"the answer is not HTTP", L"Correct the port in the address."},
    {ERROR_INTERNET_SECURITY_CHANNEL_ERROR, L"no secure connection could be agreed on",
     L"Use http:// if the LEJIS Interface has no certificate, or enable TLS 1.2 on this machine."},
    {ERROR_INTERNET_INVALID_CA, L"the server's certificate comes from an issuer who is not trusted", kCertificateCure},
    {ERROR_INTERNET_SEC_CERT_CN_INVALID, L"the server's certificate is for another name", kCertificateCure},
    {ERROR_INTERNET_SEC_CERT_DATE_INVALID, L"the server's certificate has expired", kCertificateCure},
};

}  // namespace

FailureWords WordsFor(const WebFailure& failure) {
    for (const Row& row : kRows) {
        if (row.error == failure.error) return {row.reason, row.cure};
    }
    return {L"Windows error " + std::to_wstring(failure.error) + L": " + SystemMessage(failure.error),
            L"See that the LEJIS Interface runs and that the address is right."};
}

}  // namespace lejis_client
