#pragma once

#include "platform/com/UnknownObject.h"

#include <TVLejisCore.h>

namespace benchmarks {

// Counts the completed searches.
class EventCounter final : public platform::UnknownObject<_LejisSearchWebServiceEvents> {
public:
    int completed = 0;

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        constexpr DISPID kSearchCompleted = 1;
        if (event == kSearchCompleted) ++completed;
        return S_OK;
    }
};

}  // namespace benchmarks
