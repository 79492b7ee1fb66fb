#include "network/Proxy.h"

#include <windows.h>
#include <wininet.h>

#include <algorithm>

namespace lejis_client {
namespace {

std::wstring Taken(wchar_t* text) {
    const std::wstring copy = text ? text : L"";
    GlobalFree(text);
    return copy;
}

// "http://proxy:8080/" is another way to write a proxy.
std::wstring WithoutScheme(const std::wstring& server) {
    const std::size_t end = server.find(L"://");
    const std::wstring name = end == std::wstring::npos ? server : server.substr(end + 3);
    return name.substr(0, name.find(L'/'));
}

}  // namespace

bool DetectsProxy() {
    INTERNET_PER_CONN_OPTIONW flags = {};
    flags.dwOption = INTERNET_PER_CONN_FLAGS;
    INTERNET_PER_CONN_OPTION_LISTW list = {sizeof list, nullptr, 1, 0, &flags};
    DWORD size = sizeof list;
    if (!InternetQueryOptionW(nullptr, INTERNET_OPTION_PER_CONNECTION_OPTION, &list, &size)) return false;
    char script[INTERNET_MAX_URL_LENGTH] = {};
    return (flags.Value.dwValue & PROXY_TYPE_AUTO_DETECT) &&
           DetectAutoProxyUrl(script, sizeof script, PROXY_AUTO_DETECT_TYPE_DHCP | PROXY_AUTO_DETECT_TYPE_DNS_A);
}

Proxy ReadProxy() {
    INTERNET_PER_CONN_OPTIONW options[4] = {};
    options[0].dwOption = INTERNET_PER_CONN_FLAGS;
    options[1].dwOption = INTERNET_PER_CONN_PROXY_SERVER;
    options[2].dwOption = INTERNET_PER_CONN_PROXY_BYPASS;
    options[3].dwOption = INTERNET_PER_CONN_AUTOCONFIG_URL;
    INTERNET_PER_CONN_OPTION_LISTW list = {sizeof list, nullptr, ARRAYSIZE(options), 0, options};
    DWORD size = sizeof list;
    if (!InternetQueryOptionW(nullptr, INTERNET_OPTION_PER_CONNECTION_OPTION, &list, &size)) return {};
    const DWORD flags = options[0].Value.dwValue;
    Proxy proxy = {Taken(options[1].Value.pszValue), Taken(options[2].Value.pszValue),
                   Taken(options[3].Value.pszValue)};
    // Settings that are kept, but turned off.
    if (!(flags & PROXY_TYPE_PROXY)) proxy.servers.clear();
    if (!(flags & PROXY_TYPE_AUTO_PROXY_URL)) proxy.script.clear();
    return proxy;
}

bool MayPassBy(const Proxy& proxy, const WebAddress& address) {
    return !proxy.exceptions.empty() || IsThisMachine(address.host);
}

std::wstring ServerFor(const Proxy& proxy, const std::wstring& scheme) {
    constexpr wchar_t kSeparators[] = L"; ";
    std::wstring forAll;
    for (std::size_t start = 0; start < proxy.servers.size();) {
        const std::size_t end = std::min(proxy.servers.find_first_of(kSeparators, start), proxy.servers.size());
        const std::wstring entry = proxy.servers.substr(start, end - start);
        const std::size_t equals = entry.find(L'=');
        if (equals == std::wstring::npos) {
            if (forAll.empty()) forAll = WithoutScheme(entry);
        } else if (entry.substr(0, equals) == scheme) {
            return WithoutScheme(entry.substr(equals + 1));
        }
        start = end + 1;
    }
    return forAll;
}

}  // namespace lejis_client
