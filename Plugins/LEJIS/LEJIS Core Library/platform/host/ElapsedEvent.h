#pragma once

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform::host {

// The event of a timer that its sink hears: what the sink has to answer for, and by what number it is called.
struct ElapsedEvent {
    IID source;
    DISPID number;
    Microsoft::WRL::ComPtr<IConnectionPoint> point;
};

// A timer raises Elapsed on the suite's event interface, or on any of its own, as components made with Visual Basic do;
// its class information or its connection points tell which. Raises when there is no such event to be heard.
ElapsedEvent FindElapsedEvent(IDispatch* timer);

}  // namespace platform::host
