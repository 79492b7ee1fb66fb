// A client's work, and a client's observer.
#pragma once

#include "platform/com/UnknownObject.h"

#include <TVLejisCore.h>

#include <functional>
#include <vector>

namespace support {

// The dispatch half of an interface that is called early bound alone.
template <typename Interface>
class EarlyBound : public platform::UnknownObject<Interface> {
public:
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
};

class RecordingRunnable final : public EarlyBound<IRunnable> {
public:
    int runs = 0;
    HRESULT result = S_OK;
    std::function<void()> onRun = [] {};

    STDMETHODIMP Run() override {
        ++runs;
        onRun();
        return result;
    }
};

class RecordingObserver final : public EarlyBound<IFutureObserver> {
public:
    std::vector<IFuture*> completed;

    STDMETHODIMP FutureCompleted(IFuture* theFuture) override {
        completed.push_back(theFuture);
        return S_OK;
    }
};

}  // namespace support
