// How this user's programs reach the web, by the system's settings for the Internet. The library's requests follow
// them.
#pragma once

#include "text/WebAddress.h"

#include <string>

namespace lejis_client {

struct Proxy {
    // "proxy:8080", or one for each scheme, as "http=proxy:8080;https=other:8080"; empty without a proxy.
    std::wstring servers;
    // Where no proxy is used.
    std::wstring exceptions;
    // The address of a script that chooses a proxy.
    std::wstring script;
};

Proxy ReadProxy();

// Whether the network itself names a script that chooses a proxy, and the settings want the network to be asked. It may
// take seconds.
bool DetectsProxy();

// Whether an address may be reached without the proxy: as one of the exceptions, or as this machine, of which the
// system makes an exception by itself.
bool MayPassBy(const Proxy& proxy, const WebAddress& address);

// The proxy for addresses of a scheme such as "http", with its port where it has one; empty without a proxy.
std::wstring ServerFor(const Proxy& proxy, const std::wstring& scheme);

}  // namespace lejis_client
