// A socket that listens on a free port of this machine.
#pragma once

#include <winsock2.h>

#include <atomic>
#include <string>

namespace support {

class LocalListener {
public:
    LocalListener();
    ~LocalListener();
    LocalListener(const LocalListener&) = delete;
    LocalListener& operator=(const LocalListener&) = delete;

    // http://127.0.0.1:PORT/NAME
    std::wstring Address(const std::wstring& name) const;

    // INVALID_SOCKET once it is closed.
    SOCKET Accept() const { return accept(listener_, nullptr, nullptr); }
    // Whether a client waits to be accepted.
    bool HasClient() const;
    // Ends a wait for a client that does not come.
    void Close();

private:
    WSADATA startup_{};
    // One thread may close it while another one waits for a client.
    std::atomic<SOCKET> listener_ = INVALID_SOCKET;
    u_short port_ = 0;
};

}  // namespace support
