#include "doctor/HostCheck.h"

#include "text/Layout.h"

#include <algorithm>

namespace lejis_client {
namespace {

using Names = std::vector<std::wstring>;

// The host of a namespace or SOAP action of LEJIS; empty for those of others.
std::wstring HostOf(const std::wstring& uri) {
    static const std::wstring kScheme = L"http://";
    if (!uri.starts_with(kScheme)) return {};
    const std::size_t end = uri.find(L'/', kScheme.size());
    if (end == std::wstring::npos || !uri.substr(end).starts_with(L"/lejis/")) return {};
    return uri.substr(kScheme.size(), end - kScheme.size());
}

void CollectHosts(const Names& uris, Names& hosts) {
    for (const std::wstring& uri : uris) {
        const std::wstring host = HostOf(uri);
        if (!host.empty() && std::find(hosts.begin(), hosts.end(), host) == hosts.end()) hosts.push_back(host);
    }
}

std::wstring Listed(const Names& texts) { return Enumerated({texts.begin(), texts.end()}); }

Finding OtherHost(const Service& service, const std::wstring& lejisHost, const std::wstring& hosts) {
    return {service.host, Health::kFailed,
            L"the library is made for the LEJIS host " + lejisHost + L", but the service's WSDL names " + hosts,
            L"Install the library that is made for " + hosts + L": the service refuses all that this one sends."};
}

}  // namespace

Finding CheckHost(const Service& service, const ServiceDescription& description, const std::wstring& lejisHost) {
    Names hosts;
    CollectHosts(description.namespaces, hosts);
    CollectHosts(description.soapActions, hosts);
    if (hosts.empty()) {
        return {service.host, Health::kWarning, L"the service's WSDL names no LEJIS host to compare the library's with",
                L"See that the address is that of the LEJIS " + std::wstring(service.name) + L"."};
    }
    if (hosts != Names{lejisHost}) return OtherHost(service, lejisHost, Listed(hosts));
    const std::wstring action = L"http://" + lejisHost + service.actionPath;
    const Names& actions = description.soapActions;
    if (!actions.empty() && std::find(actions.begin(), actions.end(), action) == actions.end()) {
        return {service.host, Health::kFailed,
                L"the library sends the SOAP action " + action + L", but the service's WSDL names " + Listed(actions),
                L"Ask for a library that is made for this version of LEJIS."};
    }
    return {service.host, Health::kOk, lejisHost + L", as the library's", {}};
}

}  // namespace lejis_client
