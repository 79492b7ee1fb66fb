#include "text/WebAddress.h"

#include <windows.h>
#include <wininet.h>

namespace lejis_client {
namespace {

bool EqualsIgnoringCase(const std::wstring& one, const std::wstring& other) {
    return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

std::wstring Part(const wchar_t* text, DWORD length) { return length ? std::wstring(text, length) : std::wstring(); }

std::wstring WithoutBrackets(const std::wstring& host) {
    return host.starts_with(L'[') && host.ends_with(L']') ? host.substr(1, host.size() - 2) : host;
}

std::wstring OwnName(COMPUTER_NAME_FORMAT format) {
    std::wstring name(1024, L'\0');
    auto length = static_cast<DWORD>(name.size());
    if (!GetComputerNameExW(format, name.data(), &length)) return {};
    name.resize(length);
    return name;
}

bool IsOwnName(const std::wstring& host) {
    for (const auto format : {ComputerNameNetBIOS, ComputerNameDnsHostname, ComputerNameDnsFullyQualified}) {
        if (EqualsIgnoringCase(host, OwnName(format))) return true;
    }
    return false;
}

// Four numbers of which the first is 127; "127.example.com" is a name.
bool IsLoopbackNumber(const std::wstring& host) {
    return host.starts_with(L"127.") && host.find_first_not_of(L"0123456789.") == std::wstring::npos;
}

}  // namespace

std::optional<WebAddress> ParseWebAddress(const std::wstring& address) {
    URL_COMPONENTSW parts = {};
    parts.dwStructSize = sizeof parts;
    parts.dwHostNameLength = parts.dwUrlPathLength = parts.dwExtraInfoLength = 1;
    if (!InternetCrackUrlW(address.c_str(), 0, 0, &parts) || parts.dwHostNameLength == 0) return {};
    if (parts.nScheme != INTERNET_SCHEME_HTTP && parts.nScheme != INTERNET_SCHEME_HTTPS) return {};
    return WebAddress{parts.nScheme == INTERNET_SCHEME_HTTP ? L"http" : L"https",
                      WithoutBrackets(Part(parts.lpszHostName, parts.dwHostNameLength)), parts.nPort,
                      Part(parts.lpszExtraInfo, parts.dwExtraInfoLength)};
}

bool IsThisMachine(const std::wstring& host) {
    return EqualsIgnoringCase(host, L"localhost") || host == L"::1" || IsLoopbackNumber(host) || IsOwnName(host);
}

}  // namespace lejis_client
