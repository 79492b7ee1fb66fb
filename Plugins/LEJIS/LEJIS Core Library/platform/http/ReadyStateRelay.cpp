#include "platform/http/ReadyStateRelay.h"

namespace platform {

// Whatever the arguments are: a request has nothing else to say than that its state has changed.
STDMETHODIMP ReadyStateRelay::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    const Handler handler = *handler_;
    if (!handler) return S_OK;
    DISPPARAMS none{};
    return handler->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                           nullptr);
}

}  // namespace platform
