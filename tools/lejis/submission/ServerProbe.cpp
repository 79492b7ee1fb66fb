#include "submission/ServerProbe.h"

#include "network/Proxy.h"
#include "network/TcpConnection.h"
#include "text/WebAddress.h"

namespace lejis_client {
namespace {

bool IsListening(const std::optional<WebAddress>& address) {
    return address && TakesConnection(address->host, address->port);
}

// Exceptions, and this machine, of which the system makes an exception by itself, may be reached without the proxy.
bool MayPassBy(const Proxy& proxy, const WebAddress& address) {
    return !proxy.exceptions.empty() || IsThisMachine(address.host);
}

bool IsRoadOpen(const std::wstring& url) {
    const auto address = ParseWebAddress(url);
    if (!address) return false;
    const Proxy proxy = ReadProxy();
    // A script may choose any proxy.
    if (!proxy.script.empty()) return true;
    const std::wstring server = ServerFor(proxy, address->scheme);
    if (server.empty()) return IsListening(address) || DetectsProxy();
    return IsListening(ParseWebAddress(L"http://" + server)) || (MayPassBy(proxy, *address) && IsListening(address));
}

}  // namespace

bool ServerProbe::MaySend() {
    if (doubtful_) doubtful_ = !IsRoadOpen(url_);
    return !doubtful_;
}

}  // namespace lejis_client
