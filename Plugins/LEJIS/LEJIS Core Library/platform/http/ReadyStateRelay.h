#pragma once

#include "platform/com/EventSink.h"

#include <oaidl.h>
#include <wrl/client.h>

#include <memory>

namespace platform {

// What a request gets as the handler of its ready states. It passes each call on to the handler behind it, until that
// is taken away. So a request that does not let go of what it was given, and one that calls it in a way of its own,
// harm nobody.
class ReadyStateRelay final : public EventSink<> {
public:
    using Handler = Microsoft::WRL::ComPtr<IDispatch>;

    explicit ReadyStateRelay(std::shared_ptr<Handler> handler) : handler_(std::move(handler)) {}
    // The handler lives no longer than the request that was to call it.
    ~ReadyStateRelay() override { handler_->Reset(); }

    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    const std::shared_ptr<Handler> handler_;
};

}  // namespace platform
