// Can the server of a service be reached?
#pragma once

#include "doctor/Finding.h"
#include "doctor/WebPage.h"
#include "network/Proxy.h"

namespace lejis_client {

// Looks at the address alone.
Finding CheckAddress(const wchar_t* subject, const std::wstring& url);

// `page` gets the answer, whatever its status is.
Finding CheckServer(const wchar_t* subject, const std::wstring& url, WebPage& page);

// When the server was not reached under these settings of the proxy. The proxy, or the server past it, is looked at.
Finding NotReached(const wchar_t* subject, const WebFailure& failure, const WebAddress& address, const Proxy& proxy);

// When the server has not answered in time.
Finding LateServer(const wchar_t* subject);

}  // namespace lejis_client
