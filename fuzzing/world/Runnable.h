#pragma once

#include "unit_support/RecordingRunnable.h"

#include <functional>
#include <utility>

namespace fuzzing {

// A client's work to be run later, which may fail the first time. It must not always: a future whose work fails is
// kept for ever.
class Runnable final : public support::EarlyBound<IRunnable> {
public:
    explicit Runnable(
        HRESULT first, std::function<void()> work = [] {})
        : next_(first), work_(std::move(work)) {}

    STDMETHODIMP Run() override {
        work_();
        return std::exchange(next_, S_OK);
    }

private:
    void* Find(REFIID iid) override {
        return iid == __uuidof(IDispatch) ? static_cast<IDispatch*>(this) : EarlyBound::Find(iid);
    }

    HRESULT next_;
    std::function<void()> work_;
};

}  // namespace fuzzing
