#include "submission/ServerProbe.h"

#include "network/Proxy.h"
#include "network/TcpConnection.h"
#include "text/WebAddress.h"

namespace lejis_client {
namespace {

bool IsListening(const std::optional<WebAddress>& address) {
    return address && TakesConnection(address->host, address->port);
}

bool IsOpen(const WebAddress& address) {
    const Proxy proxy = ReadProxy();
    // A script may choose any proxy.
    if (!proxy.script.empty()) return true;
    const std::wstring server = ServerFor(proxy, address.scheme);
    if (server.empty()) return IsListening(address) || DetectsProxy();
    return IsListening(ParseWebAddress(L"http://" + server)) || (MayPassBy(proxy, address) && IsListening(address));
}

Reachability ReachabilityOf(const std::wstring& url) {
    const auto address = ParseWebAddress(url);
    if (!address) return Reachability::InvalidAddress;
    return IsOpen(*address) ? Reachability::Reachable : Reachability::Unreachable;
}

}  // namespace

Reachability ServerProbe::Look() {
    if (reachability_ == Reachability::Unreachable) reachability_ = ReachabilityOf(url_);
    return reachability_;
}

}  // namespace lejis_client
