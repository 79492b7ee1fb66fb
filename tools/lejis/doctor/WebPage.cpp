#include "doctor/WebPage.h"

#include <wininet.h>

#include <memory>

namespace lejis_client {
namespace {

// Far above any description of a service.
constexpr std::size_t kLargestPage = 16 * 1024 * 1024;

struct InternetCloser {
    using pointer = HINTERNET;
    void operator()(HINTERNET handle) const { InternetCloseHandle(handle); }
};
using Internet = std::unique_ptr<HINTERNET, InternetCloser>;

Internet Owned(HINTERNET handle) {
    if (!handle) throw WebFailure{GetLastError()};
    return Internet(handle);
}

Internet OpenInternet(DWORD access) {
    Internet internet = Owned(InternetOpenW(L"lejis", access, nullptr, nullptr, 0));
    DWORD limit = INFINITE;
    for (const DWORD option : {DWORD{INTERNET_OPTION_CONNECT_TIMEOUT}, DWORD{INTERNET_OPTION_RECEIVE_TIMEOUT}}) {
        InternetSetOptionW(internet.get(), option, &limit, sizeof limit);
    }
    return internet;
}

DWORD StatusOf(HINTERNET request) {
    DWORD status = 0;
    DWORD size = sizeof status;
    DWORD index = 0;
    constexpr DWORD kQuery = HTTP_QUERY_STATUS_CODE | HTTP_QUERY_FLAG_NUMBER;
    if (!HttpQueryInfoW(request, kQuery, &status, &size, &index)) throw WebFailure{GetLastError()};
    return status;
}

std::string ContentOf(HINTERNET request) {
    std::string content;
    char piece[8192];
    for (DWORD read = 1; read > 0 && content.size() < kLargestPage; content.append(piece, read)) {
        if (!InternetReadFile(request, piece, sizeof piece, &read)) throw WebFailure{GetLastError()};
    }
    return content;
}

WebPage Fetch(const std::wstring& address, DWORD access) {
    constexpr DWORD kFlags = INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_NO_UI;
    const Internet internet = OpenInternet(access);
    const Internet request = Owned(InternetOpenUrlW(internet.get(), address.c_str(), nullptr, 0, kFlags, 0));
    const DWORD status = StatusOf(request.get());
    return {status, ContentOf(request.get())};
}

}  // namespace

WebPage FetchPage(const std::wstring& address) { return Fetch(address, INTERNET_OPEN_TYPE_PRECONFIG); }

WebPage FetchPageDirectly(const std::wstring& address) { return Fetch(address, INTERNET_OPEN_TYPE_DIRECT); }

}  // namespace lejis_client
