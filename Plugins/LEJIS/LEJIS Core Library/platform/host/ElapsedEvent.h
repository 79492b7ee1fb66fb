// Finds the event of the host suite's timer, and hears it.
#pragma once

#include "platform/com/EventSink.h"

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>

namespace platform::host {

// The event of a timer: the events interface that a sink answers for, and the number by which the timer calls it.
struct ElapsedEvent {
    IID source;
    DISPID number;
    Microsoft::WRL::ComPtr<IConnectionPoint> point;
};

// A timer raises Elapsed on the suite's event interface or on one of its own, as components made with Visual Basic do.
// Its class information or its connection points tell which. Throws when no event of that name can be heard.
ElapsedEvent FindElapsedEvent(IDispatch* timer);

// Hears one event of a timer, by its number in the events interface `source`.
class TimerSink final : public EventSink<> {
public:
    TimerSink(REFIID source, DISPID event, std::function<void()> elapsed);

    // A tick that is on its way may reach the sink after its owner has ended.
    void Disconnect() { elapsed_ = nullptr; }

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

protected:
    void* Find(REFIID iid) override;

private:
    const IID source_;
    const DISPID event_;
    std::function<void()> elapsed_;
};

}  // namespace platform::host
