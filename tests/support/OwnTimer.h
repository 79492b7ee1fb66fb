// A timer of the host suite that raises Elapsed on a source interface of its own.
#pragma once

#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>
#include <vector>

namespace support {

// What a client learns of the timer's events, and how the timer fails.
enum class TimerKind {
    kTellsClass,
    // The class information names the events' identifier alone.
    kTellsDefaultEvents,
    // Only an enumeration of the connection points shows the events, after others.
    kTellsPoints,
    kHasNoEvents,
    // The events are dual, are called by a table alone, or are different ones. None of them is ever raised.
    kHasDualEvents,
    kHasTableEvents,
    kHasOtherEvents,
    // The class is told, and then something fails.
    kRefusesSinks,
    kCannotStart,
    // It goes on calling its sink, too.
    kCannotStop,
};

class OwnTimer final : public IDispatch,
                       public IProvideClassInfo2,
                       public IConnectionPointContainer,
                       public IConnectionPoint {
public:
    OwnTimer(TimerKind kind, Microsoft::WRL::ComPtr<ITypeLib> library) : kind_(kind), library_(std::move(library)) {}

    bool enabled = false;
    long interval = 0;
    // What the interval was when the timer was started.
    long intervalAtStart = 0;
    std::vector<Microsoft::WRL::ComPtr<IDispatch>> sinks;

    // Raises Paused, which nobody waits for, and Elapsed.
    void Tick();

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** information) override;
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override;
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

    STDMETHODIMP GetClassInfo(ITypeInfo** information) override;
    STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

    STDMETHODIMP GetConnectionInterface(IID* iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer**) override { return E_NOTIMPL; }
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

private:
    const TimerKind kind_;
    const Microsoft::WRL::ComPtr<ITypeLib> library_;
    ULONG references_ = 0;
};

// While it lives, TalvexSuite.SuiteTimer is a timer of this kind.
class OwnTimerClass final : public IClassFactory {
public:
    explicit OwnTimerClass(TimerKind kind);
    ~OwnTimerClass();
    OwnTimerClass(const OwnTimerClass&) = delete;
    OwnTimerClass& operator=(const OwnTimerClass&) = delete;

    // The timers made so far.
    std::vector<Microsoft::WRL::ComPtr<OwnTimer>> timers;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    const TimerKind kind_;
    Microsoft::WRL::ComPtr<ITypeLib> library_;
    DWORD cookie_ = 0;
};

}  // namespace support
