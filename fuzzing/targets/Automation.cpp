// The interfaces that COM defines, called with everything that they may be called with.
#include "com/Calls.h"
#include "com/FailureCheck.h"
#include "com/Numbers.h"
#include "com/Texts.h"
#include "engine/Finding.h"
#include "platform/ComError.h"
#include "platform/Text.h"
#include "targets/Targets.h"
#include "unit_support/EventLog.h"
#include "world/Creation.h"
#include "world/World.h"

#include <olectl.h>

#include <algorithm>
#include <array>

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** factory);

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

constexpr UINT kMostArguments = 12;

constexpr DISPID kNumbers[] = {DISPID_VALUE,
                               DISPID_UNKNOWN,
                               DISPID_PROPERTYPUT,
                               DISPID_NEWENUM,
                               DISPID_EVALUATE,
                               -8,
                               -500,
                               0x60000000,
                               0x60010000,
                               0x7FFFFFFF,
                               static_cast<DISPID>(0x80000000)};

const IID kInterfaces[] = {IID_NULL,
                           __uuidof(IUnknown),
                           __uuidof(IDispatch),
                           __uuidof(ISupportErrorInfo),
                           __uuidof(IProvideClassInfo),
                           __uuidof(IProvideClassInfo2),
                           __uuidof(IConnectionPointContainer),
                           __uuidof(IClassFactory),
                           __uuidof(IEnumVARIANT),
                           __uuidof(IRunnable),
                           __uuidof(IFutureObserver),
                           __uuidof(ICollection),
                           __uuidof(_LejisSearchWebServiceEvents),
                           __uuidof(_LejisSubmissionWebServiceEvents),
                           __uuidof(IPersistStream),
                           __uuidof(IMarshal)};

IID AnyId(Case& one) {
    switch (one.Below(5)) {
        case 0: {
            const IID random = {one.Bits(), static_cast<USHORT>(one.Bits()), static_cast<USHORT>(one.Bits()), {}};
            return random;
        }
        case 1:
            return one.Pick(PublicClasses()).id;
        case 2:
            return one.Pick(PublicClasses()).interfaces.front()->id;
        default:
            return one.Pick(kInterfaces);
    }
}

// Takes an interface and releases it.
void Query(IUnknown* object, Case& one) {
    ComPtr<IUnknown> found;
    const IID iid = AnyId(one);
    // Asked for its class, an object gives its inside, which is an interface too.
    const bool nowhere = one.OneIn(50);
    const HRESULT result =
        object->QueryInterface(iid, nowhere ? nullptr : reinterpret_cast<void**>(found.GetAddressOf()));
    AfterCall(Road::kPlumbing, result, L"QueryInterface");
    if (FAILED(result) != (found == nullptr)) throw Finding{"QueryInterface: the result does not fit the object"};
}

class AutomationTarget final : public Target {
public:
    void Run(Case& one) override {
        World world(one);
        const PublicClass& itsClass = AnyCreatable(one);
        ComPtr<IUnknown> object = CreateObject(itsClass.id);
        world.See(object);
        one.Trace([&] { return L"create " + itsClass.name; });
        if (itsClass.name == L"TestSearch" && !one.OneIn(50)) return;
        for (uint32_t calls = 1 + one.Below(4); calls > 0; --calls) {
            BeforeCall();
            const ComPtr<IUnknown> result = Call(object.Get(), one, world);
            world.See(result);
            if (ClassOf(result.Get()) && one.OneIn(2)) object = result;
        }
    }

private:
    ComPtr<IUnknown> Call(IUnknown* object, Case& one, World& world) {
        ComPtr<IDispatch> dispatch;
        switch (one.Below(10)) {
            case 0:
                Query(object, one);
                return nullptr;
            case 1:
                return UseFactory(one);
            case 2:
                UseConnectionPoints(object, one, world);
                return nullptr;
            case 3:
                UseEnumerator(object, one);
                return nullptr;
            case 4:
                AskForInformation(object, one);
                return nullptr;
            case 5:
            case 6:
                if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())))) Name(dispatch.Get(), one);
                return nullptr;
            default:
                if (FAILED(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())))) return nullptr;
                return Invoke(dispatch.Get(), one, world);
        }
    }

    static DISPID AnyNumber(Case& one) {
        switch (one.Below(4)) {
            case 0:
                return one.Pick(kNumbers);
            case 1:
                return static_cast<DISPID>(one.Bits());
            default:
                return static_cast<DISPID>(one.Below(26));
        }
    }

    static WORD AnyKind(Case& one) {
        static constexpr WORD kKinds[] = {DISPATCH_METHOD,
                                          DISPATCH_PROPERTYGET,
                                          DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                          DISPATCH_PROPERTYPUT,
                                          DISPATCH_PROPERTYPUTREF,
                                          DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF,
                                          0,
                                          0xFFFF};
        return one.OneIn(8) ? static_cast<WORD>(one.Bits()) : one.Pick(kKinds);
    }

    // A call that gives arguments to a property without parameters is passed on to the object that the property holds.
    // Wine's dispatcher does so for a null object too. The one property that may be null gets no arguments.
    static bool BreaksDispatcher(IDispatch* object, DISPID member) {
        constexpr DISPID kResults = 4;
        ComPtr<ILejisSearchWebService> service;
        return member == kResults && SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(service.GetAddressOf())));
    }

    ComPtr<IUnknown> Invoke(IDispatch* object, Case& one, World& world) {
        std::array<VARIANT, kMostArguments> arguments{};
        std::array<DISPID, kMostArguments> names{};
        const DISPID member = AnyNumber(one);
        UINT count = one.OneIn(6) ? one.Below(kMostArguments) : one.Below(3);
        if (BreaksDispatcher(object, member)) count = 0;
        UINT named = one.OneIn(3) ? one.Below(count + 1) : 0;
        const WORD kind = AnyKind(one);
        for (UINT index = 0; index < count; ++index) arguments[index] = world.Any().AnyToDispatch();
        for (UINT index = 0; index < named; ++index) names[index] = AnyNumber(one);
        if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) && count > 0 && !one.OneIn(4)) {
            named = std::max(named, 1U);
            names[0] = DISPID_PROPERTYPUT;
        }
        // More names than arguments, and counts of what is not there.
        if (one.OneIn(30)) named = count + one.Below(3);
        DISPPARAMS parameters{one.OneIn(30) ? nullptr : arguments.data(), one.OneIn(30) ? nullptr : names.data(), count,
                              named};
        one.Trace([&] {
            std::wstring text = L"Invoke " + std::to_wstring(member) + L" kind " + std::to_wstring(kind) + L" named " +
                                std::to_wstring(named);
            for (UINT index = 0; index < count; ++index) text += L" " + Described(arguments[index]);
            return text + (parameters.rgvarg ? L"" : L" without arguments");
        });
        _variant_t result;
        EXCEPINFO exception{};
        UINT wrong = 0;
        const bool hasException = !one.OneIn(20);
        const HRESULT outcome = object->Invoke(member, one.OneIn(20) ? AnyId(one) : IID_NULL,
                                               one.OneIn(4) ? one.Bits() : LOCALE_USER_DEFAULT, kind,
                                               one.OneIn(60) ? nullptr : &parameters, one.OneIn(8) ? nullptr : &result,
                                               hasException ? &exception : nullptr, one.OneIn(8) ? nullptr : &wrong);
        PardonConversions(outcome, exception, {arguments.data(), count}, one);
        // Without a place for it, the description is on the thread alone, or lost.
        if (hasException) AfterCall(Road::kInvoke, outcome, L"Invoke", &exception);
        const bool isObject = V_VT(&result) == VT_DISPATCH || V_VT(&result) == VT_UNKNOWN;
        if (FAILED(outcome) && isObject && V_UNKNOWN(&result))
            throw Finding{"Invoke: a failure that comes with a result"};
        return isObject ? ComPtr<IUnknown>(V_UNKNOWN(&result)) : nullptr;
    }

    static std::wstring AnyMemberName(Case& one) {
        const auto& members = one.Pick(PublicClasses()).interfaces.front()->members;
        const Member& member = one.Pick(members);
        std::wstring name = member.name;
        if (!member.parameterNames.empty() && one.OneIn(3)) name = one.Pick(member.parameterNames);
        if (one.OneIn(4) && !name.empty()) name[one.Below(name.size())] ^= 0x20;
        return name;
    }

    void Name(IDispatch* object, Case& one) {
        std::array<std::wstring, 6> texts;
        std::array<LPOLESTR, 6> names{};
        std::array<DISPID, 6> numbers{};
        const UINT count = one.Below(texts.size() + 1);
        for (UINT index = 0; index < count; ++index) {
            texts[index] = one.OneIn(4) ? AnyText(one) : AnyMemberName(one);
            names[index] = one.OneIn(30) ? nullptr : texts[index].data();
            one.Trace([&] { return L"  name " + (names[index] ? texts[index] : L"null"); });
        }
        one.Trace([] { return std::wstring(L"GetIDsOfNames"); });
        const HRESULT result = object->GetIDsOfNames(
            one.OneIn(10) ? AnyId(one) : IID_NULL, one.OneIn(40) ? nullptr : names.data(), count,
            one.OneIn(4) ? one.Bits() : LOCALE_USER_DEFAULT, one.OneIn(40) ? nullptr : numbers.data());
        AfterCall(Road::kPlumbing, result, L"GetIDsOfNames");
    }

    ComPtr<IUnknown> UseFactory(Case& one) {
        ComPtr<IUnknown> found;
        ComPtr<IClassFactory> factory;
        ComPtr<IUnknown> object;
        HRESULT result = DllGetClassObject(AnyId(one), one.OneIn(3) ? AnyId(one) : __uuidof(IClassFactory),
                                           reinterpret_cast<void**>(found.GetAddressOf()));
        AfterCall(Road::kPlumbing, result, L"DllGetClassObject");
        if (FAILED(result) || FAILED(found.As(&factory))) return nullptr;
        Query(factory.Get(), one);
        const bool outer = one.OneIn(6);
        result =
            factory->CreateInstance(outer ? factory.Get() : nullptr, one.OneIn(2) ? AnyId(one) : __uuidof(IUnknown),
                                    one.OneIn(40) ? nullptr : reinterpret_cast<void**>(object.GetAddressOf()));
        AfterCall(Road::kPlumbing, result, L"CreateInstance");
        factory->LockServer(TRUE);
        factory->LockServer(FALSE);
        return object;
    }

    void UseConnectionPoints(IUnknown* object, Case& one, World& world) {
        ComPtr<IConnectionPointContainer> container;
        ComPtr<IConnectionPoint> point;
        if (FAILED(object->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())))) return;
        ComPtr<IEnumConnectionPoints> points;
        AfterCall(Road::kPlumbing, container->EnumConnectionPoints(points.GetAddressOf()), L"EnumConnectionPoints");
        Walk<IConnectionPoint*>(points.Get(), one, [](IConnectionPoint*& item) { item->Release(); });
        AfterCall(Road::kPlumbing,
                  container->FindConnectionPoint(AnyId(one), one.OneIn(40) ? nullptr : point.ReleaseAndGetAddressOf()),
                  L"FindConnectionPoint");
        points->Reset();
        if (!point && FAILED(points->Next(1, point.GetAddressOf(), nullptr))) return;
        Connect(point.Get(), one, world);
    }

    void Connect(IConnectionPoint* point, Case& one, World& world) {
        std::array<DWORD, 4> cookies{};
        for (uint32_t steps = one.Below(8); steps > 0; --steps) {
            DWORD& cookie = one.Pick(cookies);
            IID iid;
            ComPtr<IConnectionPointContainer> container;
            ComPtr<IEnumConnections> connections;
            switch (one.Below(5)) {
                case 0: {
                    // Not the container itself: it would hold itself.
                    ComPtr<IUnknown> sink =
                        one.OneIn(2) ? support::EventLog::ForSearches().Get() : AnyClient(one, world);
                    if (ClassOf(sink.Get())) sink = nullptr;
                    if (cookie) point->Unadvise(cookie);
                    cookie = 0;
                    AfterCall(Road::kPlumbing, point->Advise(sink.Get(), one.OneIn(40) ? nullptr : &cookie), L"Advise");
                    break;
                }
                case 1:
                    AfterCall(Road::kPlumbing, point->Unadvise(one.OneIn(2) ? cookie : one.Bits()), L"Unadvise");
                    break;
                case 2:
                    AfterCall(Road::kPlumbing, point->EnumConnections(connections.GetAddressOf()), L"EnumConnections");
                    Walk<CONNECTDATA>(connections.Get(), one, [](CONNECTDATA& item) { item.pUnk->Release(); });
                    break;
                case 3:
                    AfterCall(Road::kPlumbing, point->GetConnectionPointContainer(container.GetAddressOf()),
                              L"GetConnectionPointContainer");
                    break;
                default:
                    AfterCall(Road::kPlumbing, point->GetConnectionInterface(one.OneIn(40) ? nullptr : &iid),
                              L"GetConnectionInterface");
            }
        }
    }

    static ComPtr<IUnknown> AnyClient(Case& one, World& world) { return one.OneIn(3) ? nullptr : world.AnyObject(); }

    // Next, Skip, Reset and Clone in any order.
    template <typename Item, typename Enumerator, typename Clear>
    void Walk(Enumerator* enumerator, Case& one, Clear&& clear) {
        ComPtr<Enumerator> walker(enumerator);
        for (uint32_t steps = one.Below(6); steps > 0; --steps) {
            std::array<Item, 5> items{};
            ULONG fetched = 0;
            ComPtr<Enumerator> clone;
            switch (one.Below(5)) {
                case 0:
                    walker->Skip(one.OneIn(3) ? one.Bits() : one.Below(4));
                    break;
                case 1:
                    walker->Reset();
                    break;
                case 2:
                    AfterCall(Road::kPlumbing, walker->Clone(one.OneIn(40) ? nullptr : clone.GetAddressOf()), L"Clone");
                    if (clone) walker = clone;
                    break;
                default: {
                    const ULONG wanted = one.Below(items.size() + 1);
                    const bool counted = wanted != 1 || one.OneIn(2);
                    const HRESULT result =
                        walker->Next(wanted, one.OneIn(40) ? nullptr : items.data(), counted ? &fetched : nullptr);
                    AfterCall(Road::kPlumbing, result, L"Next");
                    if (!counted && result == S_OK) fetched = 1;
                    if (fetched > wanted) throw Finding{"Next: more than was wanted"};
                    std::for_each(items.begin(), items.begin() + fetched, clear);
                }
            }
        }
    }

    void UseEnumerator(IUnknown* object, Case& one) {
        ComPtr<ICollection> collection;
        ComPtr<IUnknown> enumerator;
        ComPtr<IEnumVARIANT> walker;
        if (FAILED(object->QueryInterface(IID_PPV_ARGS(collection.GetAddressOf())))) return;
        AfterCall(Road::kMember, collection->get__NewEnum(enumerator.GetAddressOf()), L"_NewEnum");
        platform::Check(enumerator.As(&walker));
        Query(walker.Get(), one);
        Walk<VARIANT>(walker.Get(), one, [](VARIANT& item) { VariantClear(&item); });
        if (one.OneIn(2)) collection->Add(_variant_t(L"added meanwhile"));
        if (one.OneIn(3)) collection->Remove(1);
        Walk<VARIANT>(walker.Get(), one, [](VARIANT& item) { VariantClear(&item); });
    }

    void AskForInformation(IUnknown* object, Case& one) {
        ComPtr<IProvideClassInfo2> provider;
        ComPtr<ISupportErrorInfo> support;
        ComPtr<IDispatch> dispatch;
        ComPtr<ITypeInfo> information;
        GUID id;
        UINT count = 0;
        if (FAILED(object->QueryInterface(IID_PPV_ARGS(provider.GetAddressOf())))) return;
        platform::Check(object->QueryInterface(IID_PPV_ARGS(support.GetAddressOf())));
        platform::Check(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())));
        support->InterfaceSupportsErrorInfo(AnyId(one));
        AfterCall(Road::kPlumbing, provider->GetGUID(one.OneIn(2) ? 1 : one.Bits(), one.OneIn(40) ? nullptr : &id),
                  L"GetGUID");
        AfterCall(Road::kPlumbing,
                  provider->GetClassInfo(one.OneIn(40) ? nullptr : information.ReleaseAndGetAddressOf()),
                  L"GetClassInfo");
        AfterCall(Road::kPlumbing, dispatch->GetTypeInfoCount(one.OneIn(40) ? nullptr : &count), L"GetTypeInfoCount");
        AfterCall(Road::kPlumbing,
                  dispatch->GetTypeInfo(one.OneIn(2) ? 0 : one.Bits(), one.Bits(),
                                        one.OneIn(40) ? nullptr : information.ReleaseAndGetAddressOf()),
                  L"GetTypeInfo");
    }
};

}  // namespace

std::unique_ptr<Target> CreateAutomation() { return std::make_unique<AutomationTarget>(); }

}  // namespace fuzzing
