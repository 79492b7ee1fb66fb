#include "platform/com/EventSource.h"

#include "platform/com/Enumerator.h"

#include <olectl.h>

#include <algorithm>
#include <memory>

using Microsoft::WRL::ComPtr;

namespace platform {

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (iid != __uuidof(IUnknown) && iid != __uuidof(IConnectionPoint)) return E_NOINTERFACE;
    *object = this;
    AddRef();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* iid) {
    if (!iid) return E_POINTER;
    *iid = events_;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
    if (!container) return E_POINTER;
    *container = ComPtr<IConnectionPointContainer>(container_).Detach();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
    if (!sink || !cookie) return E_POINTER;
    *cookie = 0;
    ComPtr<IDispatch> events;
    // A sink made for these events may answer for them alone, or be a plain automation object.
    if (FAILED(sink->QueryInterface(events_, reinterpret_cast<void**>(events.GetAddressOf()))) &&
        FAILED(sink->QueryInterface(IID_PPV_ARGS(events.GetAddressOf())))) {
        return CONNECT_E_CANNOTCONNECT;
    }
    return Guard(GUID_NULL, [&] {
        sinks_.emplace(++lastCookie_, events);
        *cookie = lastCookie_;
    });
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
    // The sink is released after it is off the list: its end may call back into this point.
    const auto node = sinks_.extract(cookie);
    return node ? S_OK : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** connections) {
    return Guard(GUID_NULL, connections, [&] {
        const auto copy = std::make_shared<const Sinks>(sinks_);
        return Create<Enumerator<IEnumConnections, CONNECTDATA>>(Enumerable<CONNECTDATA>{
            [copy] { return static_cast<ULONG>(copy->size()); },
            [copy](ULONG position, CONNECTDATA* item) {
                const auto sink = std::next(copy->begin(), static_cast<std::ptrdiff_t>(position));
                *item = {ComPtr<IUnknown>(sink->second.Get()).Detach(), sink->first};
            },
            [](CONNECTDATA* item) { item->pUnk->Release(); }});
    });
}

void ConnectionPoint::Fire(DISPID event, std::vector<_variant_t> arguments) noexcept {
    const ComPtr<IConnectionPointContainer> keptAlive(container_);
    // The result of the guard is dropped: without memory for the copy no sink can be told.
    Guard(GUID_NULL, [&] {
        const Sinks copy = sinks_;
        // Automation passes arguments in reverse order.
        std::reverse(arguments.begin(), arguments.end());
        DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        for (const auto& [cookie, sink] : copy) {
            // The result of a sink does not matter.
            sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
        }
    });
}

ComPtr<IEnumConnectionPoints> ConnectionPoint::EnumerateAlone() {
    const ComPtr<IConnectionPoint> self(this);
    return Create<Enumerator<IEnumConnectionPoints, IConnectionPoint*>>(Enumerable<IConnectionPoint*>{
        [] { return 1UL; }, [self](ULONG, IConnectionPoint** item) { *item = ComPtr(self).Detach(); },
        [](IConnectionPoint** item) { (*item)->Release(); }});
}

}  // namespace platform
