#pragma once

#include "unit_support/RecordingRunnable.h"

#include <functional>
#include <utility>

namespace fuzzing {

// A client's work to be run later.
class Runnable final : public support::EarlyBound<IRunnable> {
public:
    explicit Runnable(
        HRESULT result, std::function<void()> work = [] {})
        : result_(result), work_(std::move(work)) {}

    STDMETHODIMP Run() override {
        work_();
        return result_;
    }

private:
    void* Find(REFIID iid) override {
        return iid == __uuidof(IDispatch) ? static_cast<IDispatch*>(this) : UnknownObject::Find(iid);
    }

    const HRESULT result_;
    std::function<void()> work_;
};

}  // namespace fuzzing
