// Objects that a client implements itself: work to be run, observers, sinks, strangers.
#pragma once

#include "client/Client.h"
#include "support/EmptyDispatch.h"

#include <functional>
#include <utility>

namespace client {

// Identity, lifetime and an IDispatch that knows nothing. `Interface` derives from IDispatch.
template <typename Interface>
class ClientObject : public support::EmptyDispatch<Interface> {
public:
    ClientObject() = default;
    virtual ~ClientObject() = default;
    ClientObject(const ClientObject&) = delete;
    ClientObject& operator=(const ClientObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        *object =
            iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) || iid == __uuidof(Interface) ? this : nullptr;
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

private:
    ULONG references_ = 0;
};

// An automation object of no class that the library knows.
using Stranger = ClientObject<IDispatch>;

// Runs what it is given.
class Work final : public ClientObject<IRunnable> {
public:
    explicit Work(std::function<HRESULT()> work) : work_(std::move(work)) {}
    ~Work() override {
        if (ended_) *ended_ = true;
    }

    STDMETHODIMP Run() override { return work_(); }

    // Set when the last reference to this work is gone.
    void TellEnd(bool* ended) { ended_ = ended; }

private:
    const std::function<HRESULT()> work_;
    bool* ended_ = nullptr;
};

// Hands on what it is told.
class Observer final : public ClientObject<IFutureObserver> {
public:
    explicit Observer(std::function<HRESULT(IFuture*)> told) : told_(std::move(told)) {}

    STDMETHODIMP FutureCompleted(IFuture* theFuture) override { return told_(theFuture); }

private:
    const std::function<HRESULT(IFuture*)> told_;
};

template <typename Class, typename... Arguments>
ComPtr<Class> Make(Arguments&&... arguments) {
    return ComPtr<Class>(new Class(std::forward<Arguments>(arguments)...));
}

}  // namespace client
