#include "doctor/ProxyCheck.h"

#include "network/Proxy.h"

namespace lejis_client {
namespace {

std::wstring Named(const Proxy& proxy) {
    if (!proxy.script.empty()) return L"chosen by the script " + proxy.script;
    if (proxy.servers.empty()) return L"none for this user";
    return proxy.servers + (proxy.exceptions.empty() ? L"" : L", except for " + proxy.exceptions);
}

}  // namespace

Finding CheckProxy() { return {L"Proxy", Health::kOk, Named(ReadProxy()), {}}; }

}  // namespace lejis_client
