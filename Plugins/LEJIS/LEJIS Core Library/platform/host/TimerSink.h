#pragma once

#include "platform/com/EventSink.h"

#include <oaidl.h>

#include <functional>

namespace platform::host {

// Hears one event of a timer, by its number in the events interface `source`.
class TimerSink final : public EventSink<> {
public:
    TimerSink(REFIID source, DISPID event, std::function<void()> elapsed);

    // The timer may outlive its owner by a tick that is on its way.
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
