// The sinks that clients have connected to one event source.
#pragma once

#include <comutil.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <map>
#include <vector>

namespace platform {

// Part of its container: it lives as long as that and counts its references there.
class ConnectionPoint final : public IConnectionPoint {
public:
    ConnectionPoint(IConnectionPointContainer* container, REFIID events) : container_(container), events_(events) {}
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return container_->AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return container_->Release(); }

    STDMETHODIMP GetConnectionInterface(IID* iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

    // Tells every sink connected now. A sink may lack the event, fail, disconnect or release the source: the others are
    // told all the same, and nothing of it comes back here.
    void Fire(DISPID event, std::vector<_variant_t> arguments) noexcept;

    // The enumeration of a container's points where this is the only one.
    Microsoft::WRL::ComPtr<IEnumConnectionPoints> EnumerateAlone();

private:
    using Sinks = std::map<DWORD, Microsoft::WRL::ComPtr<IDispatch>>;

    IConnectionPointContainer* const container_;
    const IID events_;
    Sinks sinks_;
    DWORD lastCookie_ = 0;
};

}  // namespace platform
