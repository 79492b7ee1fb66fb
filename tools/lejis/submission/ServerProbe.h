// Can anything be sent to a server at all? The library says "service is down" both of a server that is not there and of
// one that broke off with the incident in its hands. So the road is tried before the service is called.
#pragma once

#include "submission/Road.h"

#include <string>

namespace lejis_client {

class ServerProbe {
public:
    explicit ServerProbe(std::wstring url) : url_(std::move(url)) {}

    // Tries the road until it was open once, and again after a doubt.
    Road Look();
    void Doubt() { road_ = Road::Closed; }

private:
    std::wstring url_;
    Road road_ = Road::Closed;
};

}  // namespace lejis_client
