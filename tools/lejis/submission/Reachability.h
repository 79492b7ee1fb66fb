#pragma once

namespace lejis_client {

// What can be known of the way to a service before the service is called.
enum class Road {
    // The address is not one of HTTP or HTTPS with a host: the library sends nothing to it.
    NoAddress,
    // Neither the server nor a proxy before the server takes a connection. The service is not called.
    Closed,
    // Something can be sent. A failure after that leaves open whether it was.
    Open,
};

}  // namespace lejis_client
