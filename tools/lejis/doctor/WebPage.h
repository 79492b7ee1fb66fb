// One GET. There is no limit of time: who waits for it sets one.
#pragma once

#include <windows.h>

#include <string>

namespace lejis_client {

struct WebPage {
    DWORD status;
    std::string content;
};

// The page was not fetched; `error` is Windows' number for the reason.
struct WebFailure {
    DWORD error;
};

// By the system's own settings for the Internet, a proxy among them: the same that the library's requests use. Raises a
// WebFailure.
WebPage FetchPage(const std::wstring& address);

// Past any proxy. Raises a WebFailure.
WebPage FetchPageDirectly(const std::wstring& address);

}  // namespace lejis_client
