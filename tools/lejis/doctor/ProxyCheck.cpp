#include "doctor/ProxyCheck.h"

#include "network/Proxy.h"

namespace lejis_client {
namespace {

constexpr wchar_t kProxySubject[] = L"Proxy";

std::wstring Named(const Proxy& proxy) {
    if (!proxy.script.empty()) return L"chosen by the script " + proxy.script;
    if (!proxy.servers.empty()) {
        return proxy.servers + (proxy.exceptions.empty() ? L"" : L", except for " + proxy.exceptions);
    }
    return DetectsProxy() ? L"chosen by the script that the network names" : L"none for this user";
}

}  // namespace

void CheckProxy(Diagnosis& diagnosis) {
    // The question to the network whether it has a script can take its time.
    diagnosis.Examine(Late(kProxySubject), [] { return Finding{kProxySubject, Health::kOk, Named(ReadProxy()), {}}; });
}

}  // namespace lejis_client
