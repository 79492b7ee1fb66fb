// Can anything be sent to a server at all? The library says "service is down" both of a server that is not there and of
// one that broke off with the incident in its hands. So the probe tries the connection before the service is called.
#pragma once

#include "submission/Reachability.h"

#include <string>

namespace lejis_client {

class ServerProbe {
public:
    explicit ServerProbe(std::wstring url) : url_(std::move(url)) {}

    // Tries the connection until it succeeds once, and again after a doubt.
    Reachability Look();
    void Doubt() { reachability_ = Reachability::Unreachable; }

private:
    std::wstring url_;
    Reachability reachability_ = Reachability::Unreachable;
};

}  // namespace lejis_client
