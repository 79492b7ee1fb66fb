#pragma once

namespace lejis_client {

// What can be known about a service before it is called.
enum class Reachability {
    // The address is not one of HTTP or HTTPS with a host: the library sends nothing to it.
    InvalidAddress,
    // Neither the server nor a proxy before the server takes a connection, so the service is not called.
    Unreachable,
    // The server or the proxy takes a connection. After a later failure it is unknown whether the incident was sent.
    Reachable,
};

}  // namespace lejis_client
