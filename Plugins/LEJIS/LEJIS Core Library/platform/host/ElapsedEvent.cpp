#include "platform/host/ElapsedEvent.h"

#include "platform/com/Guard.h"
#include "platform/com/TypeLibrary.h"
#include "platform/ComError.h"

#include <ModuleInterfaces.h>
#include <olectl.h>

#include <optional>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace platform::host {
namespace {

// The number of Elapsed in the suite's own event interface.
constexpr DISPID kSuitesElapsed = 1;

// A dual events interface is called by its table too, and a sink here has no such table.
bool IsHeardByNumber(const TYPEATTR& type) {
    return type.typekind == TKIND_DISPATCH && !(type.wTypeFlags & TYPEFLAG_FDUAL);
}

class Search {
public:
    explicit Search(IDispatch* timer) : timer_(timer) { Check(timer_.As(&points_)); }

    std::optional<ElapsedEvent> InSuitesEvents() const { return At(__uuidof(_ISuiteTimerEvents), kSuitesElapsed); }

    std::optional<ElapsedEvent> InDefaultEvents() const {
        if (const ComPtr<ITypeInfo> information = ClassInformation()) {
            if (auto found = In(DefaultEventsOf(information.Get()))) return found;
        }
        ComPtr<IProvideClassInfo2> provider;
        IID events = GUID_NULL;
        if (FAILED(timer_.As(&provider)) || FAILED(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events))) {
            return std::nullopt;
        }
        return In(TypeOf(events));
    }

    std::optional<ElapsedEvent> InAnyPoint() const {
        ComPtr<IEnumConnectionPoints> all;
        if (FAILED(points_->EnumConnectionPoints(all.GetAddressOf())) || !all) return std::nullopt;
        for (ComPtr<IConnectionPoint> point; all->Next(1, point.ReleaseAndGetAddressOf(), nullptr) == S_OK && point;) {
            IID events = GUID_NULL;
            if (FAILED(point->GetConnectionInterface(&events))) continue;
            if (auto found = In(TypeOf(events))) return found;
        }
        return std::nullopt;
    }

private:
    // Null when the timer does not describe its class.
    ComPtr<ITypeInfo> ClassInformation() const {
        ComPtr<IProvideClassInfo> provider;
        ComPtr<ITypeInfo> information;
        if (SUCCEEDED(timer_.As(&provider))) provider->GetClassInfo(information.GetAddressOf());
        return information;
    }

    // Null when the library that describes the timer does not describe these events.
    ComPtr<ITypeInfo> TypeOf(REFIID events) const {
        ComPtr<ITypeInfo> anything = ClassInformation();
        if (!anything) timer_->GetTypeInfo(0, LOCALE_USER_DEFAULT, anything.GetAddressOf());
        ComPtr<ITypeLib> library;
        ComPtr<ITypeInfo> found;
        UINT index = 0;
        if (anything && SUCCEEDED(anything->GetContainingTypeLib(library.GetAddressOf(), &index))) {
            library->GetTypeInfoOfGuid(events, found.GetAddressOf());
        }
        return found;
    }

    std::optional<ElapsedEvent> In(const ComPtr<ITypeInfo>& events) const {
        if (!events) return std::nullopt;
        const TypeAttributes type(events.Get());
        wchar_t name[] = L"Elapsed";
        LPOLESTR names = name;
        DISPID number = DISPID_UNKNOWN;
        if (!IsHeardByNumber(*type) || FAILED(events->GetIDsOfNames(&names, 1, &number))) return std::nullopt;
        return At(type->guid, number);
    }

    std::optional<ElapsedEvent> At(REFIID events, DISPID number) const {
        ElapsedEvent found{events, number, nullptr};
        if (FAILED(points_->FindConnectionPoint(events, found.point.GetAddressOf())) || !found.point) {
            return std::nullopt;
        }
        return found;
    }

    const ComPtr<IDispatch> timer_;
    ComPtr<IConnectionPointContainer> points_;
};

}  // namespace

ElapsedEvent FindElapsedEvent(IDispatch* timer) {
    const Search search(timer);
    if (auto found = search.InSuitesEvents()) return *found;
    if (auto found = search.InDefaultEvents()) return *found;
    if (auto found = search.InAnyPoint()) return *found;
    throw LastError(CONNECT_E_NOCONNECTION);
}

TimerSink::TimerSink(REFIID source, DISPID event, std::function<void()> elapsed)
    : source_(source), event_(event), elapsed_(std::move(elapsed)) {}

STDMETHODIMP TimerSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    if (event != event_ || !elapsed_) return S_OK;
    // This is a copy, because the work may end this sink.
    return Guard(GUID_NULL, [elapsed = elapsed_] { elapsed(); });
}

void* TimerSink::Find(REFIID iid) { return iid == source_ ? static_cast<IDispatch*>(this) : UnknownObject::Find(iid); }

}  // namespace platform::host
