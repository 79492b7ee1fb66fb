// Can the server of a service be reached?
#pragma once

#include "doctor/Finding.h"
#include "doctor/WebPage.h"

namespace lejis_client {

// Looks at the address alone.
Finding CheckAddress(const wchar_t* subject, const std::wstring& url);

// `page` gets the answer, whatever its status is.
Finding CheckServer(const wchar_t* subject, const std::wstring& url, WebPage& page);

// When the server has not answered in time.
Finding LateServer(const wchar_t* subject);

}  // namespace lejis_client
