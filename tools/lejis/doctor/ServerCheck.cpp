#include "doctor/ServerCheck.h"

#include "doctor/WebFailureText.h"
#include "text/WebAddress.h"

#include <windows.h>

namespace lejis_client {
namespace {

bool EndsInWsdl(const WebAddress& address) {
    return CompareStringOrdinal(address.query.c_str(), -1, L"?wsdl", -1, TRUE) == CSTR_EQUAL;
}

}  // namespace

Finding CheckAddress(const wchar_t* subject, const std::wstring& url) {
    const auto address = ParseWebAddress(url);
    if (!address) {
        return {subject, Health::kFailed, L"'" + url + L"' is no address of the web",
                L"Write it as in http://lejis-interface:8080/lejis-core-Rev01/services/submission."};
    }
    if (EndsInWsdl(*address)) {
        return {subject, Health::kFailed,
                L"the address ends in ?wsdl: it is that of the description, not of the service",
                L"Leave " + address->query + L" away, here and in the suite's settings."};
    }
    return {subject, Health::kOk, {}, {}};
}

Finding CheckServer(const wchar_t* subject, const std::wstring& url, WebPage& page) {
    try {
        page = FetchPage(url);
        return {subject, Health::kOk, L"reached", {}};
    } catch (const WebFailure& failure) {
        const FailureWords words = WordsFor(failure);
        return {subject, Health::kFailed, L"not reached: " + words.reason, words.cure, true};
    }
}

Finding LateServer(const wchar_t* subject) {
    return {subject,
            Health::kFailed,
            {},
            L"See that the LEJIS Interface runs and that no firewall or proxy is between.",
            true};
}

}  // namespace lejis_client
