#include "search/SearchSink.h"

#include <comutil.h>

#include <new>

namespace lejis_client {
namespace {

// The events by their numbers in the interface.
constexpr DISPID kSearchCompleted = 1;
constexpr DISPID kConfigurationError = 3;
constexpr DISPID kNetworkError = 4;
constexpr DISPID kServiceError = 5;

}  // namespace

STDMETHODIMP SearchSink::QueryInterface(REFIID iid, void** object) {
    if (!object) return E_POINTER;
    const bool isKnown =
        iid == __uuidof(_LejisSearchWebServiceEvents) || iid == __uuidof(IDispatch) || iid == __uuidof(IUnknown);
    *object = isKnown ? static_cast<IDispatch*>(this) : nullptr;
    if (!isKnown) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) SearchSink::Release() {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
}

STDMETHODIMP SearchSink::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP SearchSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
    switch (event) {
        case kSearchCompleted:
            return KeepResults(parameters);
        case kConfigurationError:
            return KeepMessage(SearchEnd::ConfigurationError, parameters);
        case kNetworkError:
            return KeepMessage(SearchEnd::NetworkError, parameters);
        case kServiceError:
            return KeepMessage(SearchEnd::ServiceError, parameters);
        default:
            return DISP_E_MEMBERNOTFOUND;
    }
}

HRESULT SearchSink::KeepResults(DISPPARAMS* parameters) {
    _variant_t results;
    UINT faulty = 0;
    HRESULT result = DispGetParam(parameters, 0, VT_DISPATCH, &results, &faulty);
    if (FAILED(result)) return result;
    if (!results.pdispVal) return E_POINTER;
    result = results.pdispVal->QueryInterface(IID_PPV_ARGS(outcome_.results.ReleaseAndGetAddressOf()));
    if (SUCCEEDED(result)) outcome_.end = SearchEnd::Completed;
    return result;
}

HRESULT SearchSink::KeepMessage(SearchEnd end, DISPPARAMS* parameters) {
    _variant_t message;
    UINT faulty = 0;
    const HRESULT result = DispGetParam(parameters, 0, VT_BSTR, &message, &faulty);
    if (FAILED(result)) return result;
    try {
        outcome_.message.assign(message.bstrVal ? message.bstrVal : L"", SysStringLen(message.bstrVal));
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
    outcome_.end = end;
    return S_OK;
}

}  // namespace lejis_client
