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

Road RoadTo(const std::wstring& url) {
    const auto address = ParseWebAddress(url);
    if (!address) return Road::NoAddress;
    return IsOpen(*address) ? Road::Open : Road::Closed;
}

}  // namespace

Road ServerProbe::Look() {
    if (road_ == Road::Closed) road_ = RoadTo(url_);
    return road_;
}

}  // namespace lejis_client
