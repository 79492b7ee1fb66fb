#include "unit_support/LocalListener.h"

#include <gtest/gtest.h>

namespace support {

LocalListener::LocalListener() {
    EXPECT_EQ(0, WSAStartup(MAKEWORD(2, 2), &startup_));
    const SOCKET listener = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    EXPECT_EQ(0, ::bind(listener, reinterpret_cast<const sockaddr*>(&address), size));
    EXPECT_EQ(0, listen(listener, SOMAXCONN));
    EXPECT_EQ(0, getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size));
    port_ = ntohs(address.sin_port);
    listener_ = listener;
}

LocalListener::~LocalListener() {
    Close();
    WSACleanup();
}

std::wstring LocalListener::Address(const std::wstring& name) const {
    return L"http://127.0.0.1:" + std::to_wstring(port_) + L"/" + name;
}

bool LocalListener::HasClient() const {
    fd_set waiting{};
    waiting.fd_count = 1;
    waiting.fd_array[0] = listener_;
    timeval atOnce{};
    return select(0, &waiting, nullptr, nullptr, &atOnce) == 1;
}

void LocalListener::Close() {
    const SOCKET listener = listener_.exchange(INVALID_SOCKET);
    if (listener != INVALID_SOCKET) closesocket(listener);
}

}  // namespace support
