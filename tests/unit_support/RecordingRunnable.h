// A client's work, and a client's observer.
#pragma once

#include "unit_support/EarlyBound.h"

#include <TVLejisCore.h>

#include <functional>
#include <vector>

namespace support {

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
