#include "doctor/ServerCheck.h"

#include "doctor/WebFailureText.h"
#include "network/TcpConnection.h"
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

Finding Unreached(const wchar_t* subject, const std::wstring& reason, const std::wstring& cure) {
    return {subject, Health::kFailed, L"not reached" + reason, cure, true};
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
        // An address that is not one of the web does not come as far as this.
        return NotReached(subject, failure, ParseWebAddress(url).value_or(WebAddress{}), ReadProxy());
    }
}

Finding NotReached(const wchar_t* subject, const WebFailure& failure, const WebAddress& address, const Proxy& proxy) {
    const FailureWords words = WordsFor(failure);
    if (!proxy.script.empty()) {
        return Unreached(subject, L", with a proxy of the script " + proxy.script + L": " + words.reason, words.cure);
    }
    const std::wstring server = ServerFor(proxy, address.scheme);
    const bool isDead = !server.empty() && IsDead(server);
    // Where the proxy may be bypassed, it is unknown whether it was used. So this tries the server without it.
    const bool mayBeServer = MayPassBy(proxy, address) && !TakesConnection(address.host, address.port);
    if (isDead && mayBeServer) {
        return Unreached(subject,
                         L": " + words.reason + L"; the proxy " + server + L", where it is used, takes no connection",
                         words.cure);
    }
    if (isDead) {
        return Unreached(subject, L": the proxy " + server + L" takes no connection",
                         L"See that the proxy runs, or correct it in this user's settings for the Internet.");
    }
    const bool isDirect = server.empty() || mayBeServer;
    return Unreached(subject,
                     (isDirect ? std::wstring() : L", with the proxy " + server + L" in use") + L": " + words.reason,
                     words.cure);
}

Finding LateServer(const wchar_t* subject) {
    return {subject,
            Health::kFailed,
            {},
            L"See that the LEJIS Interface runs and that no firewall or proxy is between.",
            true};
}

}  // namespace lejis_client
