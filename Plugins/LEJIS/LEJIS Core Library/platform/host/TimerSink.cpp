#include "platform/host/TimerSink.h"

#include "platform/com/Guard.h"

#include <utility>

namespace platform::host {

TimerSink::TimerSink(REFIID source, DISPID event, std::function<void()> elapsed)
    : source_(source), event_(event), elapsed_(std::move(elapsed)) {}

STDMETHODIMP TimerSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    if (event != event_ || !elapsed_) return S_OK;
    // A copy: the work may end this sink.
    return Guard(GUID_NULL, [elapsed = elapsed_] { elapsed(); });
}

void* TimerSink::Find(REFIID iid) { return iid == source_ ? static_cast<IDispatch*>(this) : UnknownObject::Find(iid); }

}  // namespace platform::host
