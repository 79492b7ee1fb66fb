#pragma once

#include <string>
#include <thread>

#include <winsock2.h>

namespace benchmarks {

// Takes requests on a free port of this machine, each on a connection of its own, and accepts each submission after
// two seconds. Ends with this object.
class SlowServer {
public:
    SlowServer();
    ~SlowServer();
    SlowServer(const SlowServer&) = delete;
    SlowServer& operator=(const SlowServer&) = delete;

    std::wstring Url() const;

private:
    void Serve() const;

    SOCKET listener_;
    std::thread thread_;
};

}  // namespace benchmarks
