// A server that nobody is meant to call: it listens on this machine, answers nothing, and knows who has tried.
#pragma once

#include <winsock2.h>

#include <string>

namespace support {

class SilentServer {
public:
    SilentServer();
    ~SilentServer();
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    // http://127.0.0.1:PORT/NAME
    std::wstring Address(const std::wstring& name) const;

    // Connections are made before a client learns that nobody answers, so they wait here to be seen.
    bool WasCalled() const;

private:
    WSADATA startup_{};
    SOCKET listener_ = INVALID_SOCKET;
    u_short port_ = 0;
};

}  // namespace support
