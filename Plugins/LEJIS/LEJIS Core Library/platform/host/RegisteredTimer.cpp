#include "platform/host/RegisteredTimer.h"

#include "platform/com/Guard.h"
#include "platform/com/LateBound.h"
#include "platform/com/UnknownObject.h"
#include "platform/ComError.h"

#include <TVLejisCore.h>

#include <utility>

using Microsoft::WRL::ComPtr;

namespace platform::host {

// Hears the timer's one event.
class TimerSink final : public UnknownObject<_ISuiteTimerEvents> {
public:
    explicit TimerSink(std::function<void()> elapsed) : elapsed_(std::move(elapsed)) {}

    // The timer may outlive its owner by a tick that is on its way.
    void Disconnect() { elapsed_ = nullptr; }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (count) *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        constexpr DISPID kElapsed = 1;
        if (event != kElapsed || !elapsed_) return S_OK;
        // A copy: the work may end this sink.
        return Guard(GUID_NULL, [elapsed = elapsed_] { elapsed(); });
    }

protected:
    void* Find(REFIID iid) override {
        return iid == __uuidof(IDispatch) ? static_cast<IDispatch*>(this) : UnknownObject::Find(iid);
    }

private:
    std::function<void()> elapsed_;
};

RegisteredTimer::RegisteredTimer(ComPtr<IDispatch> timer, std::function<void()> elapsed)
    : timer_(std::move(timer)), sink_(Create<TimerSink>(std::move(elapsed))) {
    ComPtr<IConnectionPointContainer> container;
    Check(timer_.As(&container));
    Check(container->FindConnectionPoint(__uuidof(_ISuiteTimerEvents), events_.GetAddressOf()));
    Check(events_->Advise(sink_.Get(), &cookie_));
}

RegisteredTimer::~RegisteredTimer() {
    sink_->Disconnect();
    try {
        SetEnabled(false);
    } catch (...) {
        // A timer that cannot be stopped ticks into a sink that no longer listens.
    }
    events_->Unadvise(cookie_);
}

void RegisteredTimer::SetInterval(long milliseconds) { PutMember(timer_.Get(), L"Interval", milliseconds); }
void RegisteredTimer::SetEnabled(bool enabled) { PutMember(timer_.Get(), L"Enabled", enabled); }

}  // namespace platform::host
