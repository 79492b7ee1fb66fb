#include "unit_support/SilentServer.h"

#include <gtest/gtest.h>

namespace support {

SilentServer::SilentServer() {
    EXPECT_EQ(0, WSAStartup(MAKEWORD(2, 2), &startup_));
    listener_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    EXPECT_EQ(0, bind(listener_, reinterpret_cast<const sockaddr*>(&address), size));
    EXPECT_EQ(0, listen(listener_, SOMAXCONN));
    EXPECT_EQ(0, getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size));
    port_ = ntohs(address.sin_port);
}

SilentServer::~SilentServer() {
    closesocket(listener_);
    WSACleanup();
}

std::wstring SilentServer::Address(const std::wstring& name) const {
    return L"http://127.0.0.1:" + std::to_wstring(port_) + L"/" + name;
}

bool SilentServer::WasCalled() const {
    fd_set waiting{};
    waiting.fd_count = 1;
    waiting.fd_array[0] = listener_;
    timeval atOnce{};
    return select(0, &waiting, nullptr, nullptr, &atOnce) == 1;
}

}  // namespace support
