#include "AnsweredRequest.h"

namespace benchmarks {

STDMETHODIMP AnsweredRequest::get_readyState(long* state) {
    *state = 4;
    return S_OK;
}

STDMETHODIMP AnsweredRequest::get_status(long* status) {
    *status = 200;
    return S_OK;
}

STDMETHODIMP AnsweredRequest::get_responseXML(IDispatch** document) {
    *document = Microsoft::WRL::ComPtr<IDispatch>(answer_.Get()).Detach();
    return S_OK;
}

}  // namespace benchmarks
