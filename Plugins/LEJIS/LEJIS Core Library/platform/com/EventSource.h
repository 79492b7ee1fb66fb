// Public classes that raise events, and the sinks that clients connect to them.
#pragma once

#include "platform/com/ComObject.h"

#include <comutil.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <map>
#include <vector>

namespace platform {

// The sinks of one event source. It is a part of its container: it lives as long, and counts its references there.
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

    // Tells every sink that is connected now. A sink may lack the event, fail, disconnect or release the source: the
    // other sinks are told all the same, and this call does not fail.
    void Fire(DISPID event, std::vector<_variant_t> arguments) noexcept;

    // The enumeration of the points of a container that has this one alone.
    Microsoft::WRL::ComPtr<IEnumConnectionPoints> EnumerateAlone();

private:
    using Sinks = std::map<DWORD, Microsoft::WRL::ComPtr<IDispatch>>;

    IConnectionPointContainer* const container_;
    const IID events_;
    Sinks sinks_;
    DWORD lastCookie_ = 0;
};

// The base of a public class that raises events. `Events` is the dispinterface that clients' sinks implement.
template <typename Coclass, typename Interface, typename Events, typename... MoreInterfaces>
class EventSource : public ComObject<Coclass, Interface, IConnectionPointContainer, MoreInterfaces...> {
public:
    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override {
        return this->Guard(points, [&] { return events_.EnumerateAlone(); });
    }

    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override {
        if (!point) return E_POINTER;
        *point = nullptr;
        if (iid != __uuidof(Events)) return CONNECT_E_NOCONNECTION;
        return this->Guard(point, [&] { return Microsoft::WRL::ComPtr<IConnectionPoint>(&events_); });
    }

protected:
    // Raises an event. This object lives at least until all sinks have been told.
    void Fire(DISPID event, std::vector<_variant_t> arguments = {}) { events_.Fire(event, std::move(arguments)); }

private:
    ConnectionPoint events_{static_cast<IConnectionPointContainer*>(this), __uuidof(Events)};
};

}  // namespace platform
