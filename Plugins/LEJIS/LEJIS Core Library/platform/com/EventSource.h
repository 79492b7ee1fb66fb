// A public class that raises events.
#pragma once

#include "platform/com/ComObject.h"
#include "platform/com/ConnectionPoint.h"

#include <ocidl.h>

namespace platform {

// `Events` is the dispinterface that clients' sinks implement.
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
