// Can anything be sent to a server at all? The library says "service is down" both of a server that is not there and of
// one that broke off with the incident in its hands. What was tried before anything was sent tells the two apart.
#pragma once

#include <string>

namespace lejis_client {

class ServerProbe {
public:
    explicit ServerProbe(std::wstring url) : url_(std::move(url)) {}

    // False where neither the server nor a proxy before it takes a connection, so that nothing can be sent. It tries
    // once, and again after each doubt.
    bool MaySend();
    void Doubt() { doubtful_ = true; }

private:
    std::wstring url_;
    bool doubtful_ = true;
};

}  // namespace lejis_client
