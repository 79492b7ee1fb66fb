// One GET by the system's own settings for the Internet, a proxy among them: the same that the library's requests use.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace lejis_client {

struct WebPage {
    DWORD status;
    std::string content;
};

// A page could not be had: Windows' number for the reason.
struct WebFailure {
    DWORD error;
};

// Whether this is an address of the web at all.
bool IsWebAddress(const std::wstring& address);

// Raises a WebFailure.
WebPage FetchPage(const std::wstring& address);

}  // namespace lejis_client
