#include "submission/ServerProbe.h"

#include <windows.h>
#include <wininet.h>
#include <winsock2.h>
#include <ws2tcpip.h>

#include <memory>

namespace lejis_client {
namespace {

constexpr long kSeconds = 10;

struct Place {
    std::wstring host;
    std::wstring port;
};

Place PlaceOf(const std::wstring& url) {
    URL_COMPONENTSW parts = {};
    parts.dwStructSize = sizeof parts;
    parts.dwHostNameLength = 1;
    if (!InternetCrackUrlW(url.c_str(), 0, 0, &parts)) return {};
    return {{parts.lpszHostName, parts.dwHostNameLength}, std::to_wstring(parts.nPort)};
}

struct AddressesDeleter {
    void operator()(ADDRINFOW* addresses) const { FreeAddrInfoW(addresses); }
};

// A connection attempt on one address, which is closed again at once.
class Connection {
public:
    explicit Connection(const ADDRINFOW& address)
        : socket_(::socket(address.ai_family, address.ai_socktype, address.ai_protocol)) {
        u_long nonBlocking = 1;
        ioctlsocket(socket_, FIONBIO, &nonBlocking);
        if (connect(socket_, address.ai_addr, static_cast<int>(address.ai_addrlen)) == 0) return;
        error_ = WSAGetLastError();
        if (error_ == WSAEWOULDBLOCK) error_ = Await();
    }
    ~Connection() { closesocket(socket_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // 0 once it stands.
    int Error() const { return error_; }

private:
    int Await() const {
        fd_set writable, failed;
        FD_ZERO(&writable);
        FD_ZERO(&failed);
        FD_SET(socket_, &writable);
        FD_SET(socket_, &failed);
        timeval limit = {kSeconds, 0};
        if (select(0, nullptr, &writable, &failed, &limit) <= 0) return WSAETIMEDOUT;
        int error = 0;
        int size = sizeof error;
        getsockopt(socket_, SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error), &size);
        if (error == 0 && FD_ISSET(socket_, &failed)) error = WSAECONNREFUSED;
        return error;
    }

    SOCKET socket_;
    int error_ = 0;
};

void StartSockets() {
    WSADATA ignored;
    static const int started = WSAStartup(MAKEWORD(2, 2), &ignored);
    static_cast<void>(started);
}

bool TakesConnection(const Place& place) {
    StartSockets();
    ADDRINFOW wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    ADDRINFOW* found = nullptr;
    if (GetAddrInfoW(place.host.c_str(), place.port.c_str(), &wanted, &found)) return false;
    const std::unique_ptr<ADDRINFOW, AddressesDeleter> addresses(found);
    for (const ADDRINFOW* address = found; address; address = address->ai_next) {
        if (Connection(*address).Error() == 0) return true;
    }
    return false;
}

}  // namespace

bool ServerProbe::FindsServer() {
    if (doubtful_) doubtful_ = !TakesConnection(PlaceOf(url_));
    return !doubtful_;
}

}  // namespace lejis_client
