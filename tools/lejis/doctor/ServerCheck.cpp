#include "doctor/ServerCheck.h"

#include "doctor/WebFailureText.h"
#include "network/Proxy.h"
#include "text/WebAddress.h"

#include <windows.h>
#include <wininet.h>

namespace lejis_client {
namespace {

bool EndsInWsdl(const WebAddress& address) {
    return CompareStringOrdinal(address.query.c_str(), -1, L"?wsdl", -1, TRUE) == CSTR_EQUAL;
}

// Whether nothing answers there. A proxy may well answer this question with a refusal.
bool IsDead(const std::wstring& proxy) {
    try {
        FetchPageDirectly(L"http://" + proxy + L"/");
        return false;
    } catch (const WebFailure& failure) {
        return failure.error == ERROR_INTERNET_CANNOT_CONNECT || failure.error == ERROR_INTERNET_NAME_NOT_RESOLVED ||
               failure.error == ERROR_INTERNET_TIMEOUT;
    }
}

Finding NotReached(const wchar_t* subject, const WebFailure& failure, const std::wstring& proxy) {
    const FailureWords words = WordsFor(failure);
    if (proxy.empty()) return {subject, Health::kFailed, L"not reached: " + words.reason, words.cure, true};
    if (IsDead(proxy)) {
        return {subject, Health::kFailed, L"not reached: the proxy " + proxy + L" takes no connection",
                L"See that the proxy runs, or correct it in this user's settings for the Internet.", true};
    }
    return {subject, Health::kFailed, L"not reached, with the proxy " + proxy + L" in use: " + words.reason, words.cure,
            true};
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
        const auto address = ParseWebAddress(url);
        return NotReached(subject, failure, address ? ServerFor(ReadProxy(), address->scheme) : std::wstring());
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
