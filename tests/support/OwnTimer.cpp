#include "support/OwnTimer.h"

#include "support/ComCheck.h"
#include "support/TestFile.h"

#include <oleauto.h>
#include <olectl.h>

#include <utility>

using Microsoft::WRL::ComPtr;

namespace support {
namespace {

// The identifiers of OwnTimer.idl.
constexpr GUID kMembers = {0x6B1D9E50, 0x2C57, 0x4C57, {0x9C, 0x0B, 0x3F, 0x5D, 0x1E, 0x7A, 0x4A, 0x02}};
constexpr GUID kEvents = {0x6B1D9E50, 0x2C57, 0x4C57, {0x9C, 0x0B, 0x3F, 0x5D, 0x1E, 0x7A, 0x4A, 0x03}};
constexpr GUID kClass = {0x6B1D9E50, 0x2C57, 0x4C57, {0x9C, 0x0B, 0x3F, 0x5D, 0x1E, 0x7A, 0x4A, 0x04}};
constexpr GUID kDualEvents = {0x6B1D9E50, 0x2C57, 0x4C57, {0x9C, 0x0B, 0x3F, 0x5D, 0x1E, 0x7A, 0x4A, 0x05}};
constexpr GUID kTableEvents = {0x6B1D9E50, 0x2C57, 0x4C57, {0x9C, 0x0B, 0x3F, 0x5D, 0x1E, 0x7A, 0x4A, 0x06}};
constexpr GUID kOtherEvents = {0x6B1D9E50, 0x2C57, 0x4C57, {0x9C, 0x0B, 0x3F, 0x5D, 0x1E, 0x7A, 0x4A, 0x07}};
constexpr DISPID kEnabled = 1;
constexpr DISPID kInterval = 2;
constexpr DISPID kPaused = 3;
constexpr DISPID kElapsed = 7;

constexpr wchar_t kProgId[] = L"TalvexSuite.SuiteTimer";

template <typename Interface>
class Counted : public Interface {
public:
    STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

protected:
    virtual ~Counted() = default;

private:
    ULONG references_ = 0;
};

// A point that takes every sink and never calls one.
class SilentPoint final : public Counted<IConnectionPoint> {
public:
    explicit SilentPoint(REFIID events) : events_(events) {}

    STDMETHODIMP GetConnectionInterface(IID* iid) override {
        *iid = events_;
        return S_OK;
    }
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer**) override { return E_NOTIMPL; }
    STDMETHODIMP Advise(IUnknown*, DWORD* cookie) override {
        *cookie = 1;
        return S_OK;
    }
    STDMETHODIMP Unadvise(DWORD) override { return S_OK; }
    STDMETHODIMP EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

private:
    const IID events_;
};

class Points final : public Counted<IEnumConnectionPoints> {
public:
    explicit Points(std::vector<ComPtr<IConnectionPoint>> all) : all_(std::move(all)) {}

    STDMETHODIMP Next(ULONG, IConnectionPoint** point, ULONG*) override {
        *point = nullptr;
        if (next_ == all_.size()) return S_FALSE;
        *point = ComPtr<IConnectionPoint>(all_[next_++]).Detach();
        return S_OK;
    }
    STDMETHODIMP Skip(ULONG) override { return E_NOTIMPL; }
    STDMETHODIMP Reset() override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IEnumConnectionPoints**) override { return E_NOTIMPL; }

private:
    const std::vector<ComPtr<IConnectionPoint>> all_;
    size_t next_ = 0;
};

bool TellsClass(TimerKind kind) {
    return kind == TimerKind::kTellsClass || kind == TimerKind::kRefusesSinks || kind == TimerKind::kCannotStart ||
           kind == TimerKind::kCannotStop;
}

// The events that a timer of this kind has and never raises; null without such.
const GUID* SilentEvents(TimerKind kind) {
    switch (kind) {
        case TimerKind::kHasDualEvents:
            return &kDualEvents;
        case TimerKind::kHasTableEvents:
            return &kTableEvents;
        case TimerKind::kHasOtherEvents:
        case TimerKind::kTellsPoints:
            return &kOtherEvents;
        default:
            return nullptr;
    }
}

}  // namespace

void OwnTimer::Tick() {
    const ComPtr<IDispatch> self(this);
    const auto told = sinks;
    for (const DISPID event : {kPaused, kElapsed}) {
        for (const auto& sink : told) {
            DISPPARAMS none{};
            if (sink) {
                sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
            }
        }
    }
}

STDMETHODIMP OwnTimer::QueryInterface(REFIID iid, void** object) {
    *object = nullptr;
    const bool tellsEvents = TellsClass(kind_) || kind_ == TimerKind::kTellsDefaultEvents;
    if (iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch)) {
        *object = static_cast<IDispatch*>(this);
    } else if (tellsEvents && (iid == __uuidof(IProvideClassInfo) || iid == __uuidof(IProvideClassInfo2))) {
        *object = static_cast<IProvideClassInfo2*>(this);
    } else if (kind_ != TimerKind::kHasNoEvents && iid == __uuidof(IConnectionPointContainer)) {
        *object = static_cast<IConnectionPointContainer*>(this);
    }
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) OwnTimer::Release() {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
}

STDMETHODIMP OwnTimer::GetTypeInfoCount(UINT* count) {
    *count = 1;
    return S_OK;
}

STDMETHODIMP OwnTimer::GetTypeInfo(UINT, LCID, ITypeInfo** information) {
    return library_->GetTypeInfoOfGuid(kMembers, information);
}

STDMETHODIMP OwnTimer::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) {
    ComPtr<ITypeInfo> information;
    EXPECT_OK(GetTypeInfo(0, 0, information.GetAddressOf()));
    return information->GetIDsOfNames(names, count, numbers);
}

STDMETHODIMP OwnTimer::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                              UINT*) {
    if (kind != DISPATCH_PROPERTYPUT) return DISP_E_MEMBERNOTFOUND;
    const _variant_t value(parameters->rgvarg[0]);
    if (member == kInterval) interval = value;
    if (member != kEnabled) return S_OK;
    const bool starts = value;
    if (kind_ == (starts ? TimerKind::kCannotStart : TimerKind::kCannotStop)) return E_FAIL;
    enabled = starts;
    if (starts) intervalAtStart = interval;
    return S_OK;
}

STDMETHODIMP OwnTimer::GetClassInfo(ITypeInfo** information) {
    return TellsClass(kind_) ? library_->GetTypeInfoOfGuid(kClass, information) : E_FAIL;
}

STDMETHODIMP OwnTimer::GetGUID(DWORD kind, GUID* guid) {
    if (kind_ != TimerKind::kTellsDefaultEvents || kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_FAIL;
    *guid = kEvents;
    return S_OK;
}

STDMETHODIMP OwnTimer::EnumConnectionPoints(IEnumConnectionPoints** points) {
    *points = nullptr;
    const GUID* const silent = SilentEvents(kind_);
    if (!silent) return E_NOTIMPL;
    std::vector<ComPtr<IConnectionPoint>> all = {new SilentPoint(*silent)};
    if (kind_ == TimerKind::kTellsPoints) all.emplace_back(this);
    *points = ComPtr<IEnumConnectionPoints>(new Points(std::move(all))).Detach();
    return S_OK;
}

STDMETHODIMP OwnTimer::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
    *point = nullptr;
    const GUID* const silent = SilentEvents(kind_);
    const bool raisesEvents = !silent || kind_ == TimerKind::kTellsPoints;
    if (raisesEvents && iid == kEvents) *point = ComPtr<IConnectionPoint>(this).Detach();
    if (silent && iid == *silent) *point = ComPtr<IConnectionPoint>(new SilentPoint(iid)).Detach();
    return *point ? S_OK : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP OwnTimer::GetConnectionInterface(IID* iid) {
    *iid = kEvents;
    return S_OK;
}

STDMETHODIMP OwnTimer::Advise(IUnknown* sink, DWORD* cookie) {
    ComPtr<IDispatch> events;
    if (kind_ == TimerKind::kRefusesSinks) return CONNECT_E_ADVISELIMIT;
    // A source asks for its own events and for nothing else.
    if (FAILED(sink->QueryInterface(kEvents, reinterpret_cast<void**>(events.GetAddressOf())))) {
        return CONNECT_E_CANNOTCONNECT;
    }
    sinks.push_back(events);
    *cookie = static_cast<DWORD>(sinks.size());
    return S_OK;
}

STDMETHODIMP OwnTimer::Unadvise(DWORD cookie) {
    if (kind_ == TimerKind::kCannotStop || cookie < 1 || cookie > sinks.size()) return CONNECT_E_NOCONNECTION;
    sinks[cookie - 1].Reset();
    return S_OK;
}

OwnTimerClass::OwnTimerClass(TimerKind kind) : kind_(kind) {
    wchar_t classId[40];
    const DWORD bytes = static_cast<DWORD>(2 * (StringFromGUID2(kClass, classId, ARRAYSIZE(classId))));
    const std::wstring library = TestFile(L"OwnTimer.tlb", L"" OWN_TIMER_LIBRARY);
    EXPECT_OK(LoadTypeLibEx(library.c_str(), REGKIND_NONE, library_.GetAddressOf()));
    EXPECT_EQ(ERROR_SUCCESS, RegSetKeyValueW(HKEY_CLASSES_ROOT, (std::wstring(kProgId) + L"\\CLSID").c_str(), nullptr,
                                             REG_SZ, classId, bytes));
    EXPECT_OK(CoRegisterClassObject(kClass, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_));
}

OwnTimerClass::~OwnTimerClass() {
    CoRevokeClassObject(cookie_);
    RegDeleteTreeW(HKEY_CLASSES_ROOT, kProgId);
}

STDMETHODIMP OwnTimerClass::QueryInterface(REFIID iid, void** object) {
    const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IClassFactory);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP OwnTimerClass::CreateInstance(IUnknown*, REFIID iid, void** object) {
    timers.emplace_back(new OwnTimer(kind_, library_));
    return timers.back()->QueryInterface(iid, object);
}

}  // namespace support
