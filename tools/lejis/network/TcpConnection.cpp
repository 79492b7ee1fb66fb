#include "network/TcpConnection.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <memory>

namespace lejis_client {
namespace {

constexpr long kSeconds = 10;

struct AddressesDeleter {
    void operator()(ADDRINFOW* addresses) const { FreeAddrInfoW(addresses); }
};

class TcpConnection {
public:
    explicit TcpConnection(const ADDRINFOW& address)
        : socket_(::socket(address.ai_family, address.ai_socktype, address.ai_protocol)) {
        u_long nonBlocking = 1;
        ioctlsocket(socket_, static_cast<long>(FIONBIO), &nonBlocking);
        if (connect(socket_, address.ai_addr, static_cast<int>(address.ai_addrlen)) == 0) return;
        error_ = WSAGetLastError();
        if (error_ == WSAEWOULDBLOCK) error_ = Await();
    }
    ~TcpConnection() { closesocket(socket_); }
    TcpConnection(const TcpConnection&) = delete;
    TcpConnection& operator=(const TcpConnection&) = delete;

    // 0 once the connection stands.
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
        // Who breaks a connection off has taken it.
        return error == WSAECONNRESET ? 0 : error;
    }

    SOCKET socket_;
    int error_ = 0;
};

void StartSockets() {
    WSADATA ignored;
    static const int started = WSAStartup(MAKEWORD(2, 2), &ignored);
    static_cast<void>(started);
}

}  // namespace

bool TakesConnection(const std::wstring& host, unsigned short port) {
    StartSockets();
    ADDRINFOW wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    ADDRINFOW* found = nullptr;
    if (GetAddrInfoW(host.c_str(), std::to_wstring(port).c_str(), &wanted, &found)) return false;
    const std::unique_ptr<ADDRINFOW, AddressesDeleter> addresses(found);
    for (const ADDRINFOW* address = found; address; address = address->ai_next) {
        if (TcpConnection(*address).Error() == 0) return true;
    }
    return false;
}

}  // namespace lejis_client
