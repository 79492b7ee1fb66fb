// What Wine never has: settings that name a script for the proxy.
#include "doctor/ServerCheck.h"

#include <gtest/gtest.h>

#include <wininet.h>

namespace lejis_client {
namespace {

constexpr wchar_t kScript[] = L"http://127.0.0.1:1/proxy.pac";

TEST(ServerThatIsNotReached, IsToldWithTheScriptThatChoosesTheProxy) {
    const Finding finding =
        NotReached(L"Submission server", {ERROR_INTERNET_CANNOT_CONNECT}, {L"http", L"127.0.0.1", 1, L""},
                   {.servers = L"127.0.0.1:1", .exceptions = L"", .script = kScript});
    EXPECT_EQ(Health::kFailed, finding.health);
    EXPECT_TRUE(finding.mayPass);
    EXPECT_EQ(
        L"not reached, with a proxy of the script http://127.0.0.1:1/proxy.pac: the machine takes no connection "
        L"at this port",
        finding.text);
}

}  // namespace
}  // namespace lejis_client
