#include "library/PlaceholderHost.h"

#include "library/Library.h"
#include "text/WebAddress.h"

namespace lejis_client {
namespace {

constexpr wchar_t kPlaceholder[] = L"lejis.example";

}  // namespace

bool IsPlaceholderHost(const std::wstring& lejisHost) { return lejisHost == kPlaceholder; }

std::wstring PlaceholderComplaint(const std::wstring& url) {
    const auto lejisHost = LejisHost();
    const auto address = ParseWebAddress(url);
    // What is no address goes nowhere, and the library says so.
    if (!lejisHost || !IsPlaceholderHost(*lejisHost) || !address || IsThisMachine(address->host)) return {};
    return L"nothing was sent: TVLejisCore is made for the LEJIS host " + *lejisHost +
           L", whose requests only a simulator takes, and " + address->host +
           L" is not this machine; install the library that is made for your LEJIS, or send with --force";
}

}  // namespace lejis_client
