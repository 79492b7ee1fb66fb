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

IID AnyId(Case& input) {
    switch (input.Below(5)) {
        case 0: {
            const IID random = {input.Bits(), static_cast<USHORT>(input.Bits()), static_cast<USHORT>(input.Bits()), {}};
            return random;
        }
        case 1:
            return input.Pick(PublicClasses()).id;
        case 2:
            return input.Pick(PublicClasses()).interfaces.front()->id;
        default:
            return input.Pick(kInterfaces);
    }
}

// Takes an interface and releases it.
void Query(IUnknown* object, Case& input) {
    ComPtr<IUnknown> found;
    const IID iid = AnyId(input);
    // Asked for its class, an object gives its inside, which is an interface too.
    const bool nowhere = input.OneIn(50);
    const HRESULT result =
        object->QueryInterface(iid, nowhere ? nullptr : reinterpret_cast<void**>(found.GetAddressOf()));
    AfterCall(CallKind::kComInterface, result, L"QueryInterface");
    if (FAILED(result) != (found == nullptr)) throw Finding{"QueryInterface: the result does not fit the object"};
}

class AutomationTarget final : public Target {
public:
    void Run(Case& input) override {
        World world(input);
        const PublicClass& itsClass = AnyCreatable(input);
        ComPtr<IUnknown> object = CreateObject(itsClass.id);
        world.See(object);
        input.Trace([&] { return L"create " + itsClass.name; });
        if (itsClass.name == L"TestSearch" && !input.OneIn(50)) return;
        for (uint32_t calls = 1 + input.Below(4); calls > 0; --calls) {
            BeforeCall();
            const ComPtr<IUnknown> result = Call(object.Get(), input, world);
            world.See(result);
            if (ClassOf(result.Get()) && input.OneIn(2)) object = result;
        }
    }

private:
    ComPtr<IUnknown> Call(IUnknown* object, Case& input, World& world) {
        ComPtr<IDispatch> dispatch;
        switch (input.Below(10)) {
            case 0:
                Query(object, input);
                return nullptr;
            case 1:
                return UseFactory(input);
            case 2:
                UseConnectionPoints(object, input, world);
                return nullptr;
            case 3:
                UseEnumerator(object, input);
                return nullptr;
            case 4:
                AskForInformation(object, input);
                return nullptr;
            case 5:
            case 6:
                if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf()))))
                    Name(dispatch.Get(), input);
                return nullptr;
            default:
                if (FAILED(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())))) return nullptr;
                return Invoke(dispatch.Get(), input, world);
        }
    }

    static DISPID AnyNumber(Case& input) {
        switch (input.Below(4)) {
            case 0:
                return input.Pick(kNumbers);
            case 1:
                return static_cast<DISPID>(input.Bits());
            default:
                return static_cast<DISPID>(input.Below(26));
        }
    }

    static WORD AnyKind(Case& input) {
        static constexpr WORD kKinds[] = {DISPATCH_METHOD,
                                          DISPATCH_PROPERTYGET,
                                          DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                          DISPATCH_PROPERTYPUT,
                                          DISPATCH_PROPERTYPUTREF,
                                          DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF,
                                          0,
                                          0xFFFF};
        return input.OneIn(8) ? static_cast<WORD>(input.Bits()) : input.Pick(kKinds);
    }

    // A call that gives arguments to a property without parameters is passed on to the object that the property holds.
    // Wine's dispatcher does so for a null object too. The one property that may be null gets no arguments.
    static bool BreaksDispatcher(IDispatch* object, DISPID member) {
        constexpr DISPID kResults = 4;
        ComPtr<ILejisSearchWebService> service;
        return member == kResults && SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(service.GetAddressOf())));
    }

    ComPtr<IUnknown> Invoke(IDispatch* object, Case& input, World& world) {
        std::array<VARIANT, kMostArguments> arguments{};
        std::array<DISPID, kMostArguments> names{};
        const DISPID member = AnyNumber(input);
        UINT count = input.OneIn(6) ? input.Below(kMostArguments) : input.Below(3);
        if (BreaksDispatcher(object, member)) count = 0;
        UINT named = input.OneIn(3) ? input.Below(count + 1) : 0;
        const WORD kind = AnyKind(input);
        for (UINT index = 0; index < count; ++index) arguments[index] = world.Any().AnyToDispatch();
        for (UINT index = 0; index < named; ++index) names[index] = AnyNumber(input);
        if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) && count > 0 && !input.OneIn(4)) {
            named = std::max(named, 1U);
            names[0] = DISPID_PROPERTYPUT;
        }
        // More names than arguments, and counts of what is not there.
        if (input.OneIn(30)) named = count + input.Below(3);
        DISPPARAMS parameters{input.OneIn(30) ? nullptr : arguments.data(), input.OneIn(30) ? nullptr : names.data(),
                              count, named};
        input.Trace([&] {
            std::wstring text = L"Invoke " + std::to_wstring(member) + L" kind " + std::to_wstring(kind) + L" named " +
                                std::to_wstring(named);
            for (UINT index = 0; index < count; ++index) text += L" " + Described(arguments[index]);
            return text + (parameters.rgvarg ? L"" : L" without arguments");
        });
        _variant_t result;
        EXCEPINFO exception{};
        UINT wrong = 0;
        const bool hasException = !input.OneIn(20);
        const HRESULT outcome = object->Invoke(
            member, input.OneIn(20) ? AnyId(input) : IID_NULL, input.OneIn(4) ? input.Bits() : LOCALE_USER_DEFAULT,
            kind, input.OneIn(60) ? nullptr : &parameters, input.OneIn(8) ? nullptr : &result,
            hasException ? &exception : nullptr, input.OneIn(8) ? nullptr : &wrong);
        PardonConversions(outcome, exception, {arguments.data(), count}, input);
        // Without a place for it, the description is on the thread alone, or lost.
        if (hasException) AfterCall(CallKind::kInvoke, outcome, L"Invoke", &exception);
        const bool isObject = V_VT(&result) == VT_DISPATCH || V_VT(&result) == VT_UNKNOWN;
        if (FAILED(outcome) && isObject && V_UNKNOWN(&result))
            throw Finding{"Invoke: a failure that comes with a result"};
        return isObject ? ComPtr<IUnknown>(V_UNKNOWN(&result)) : nullptr;
    }

    static std::wstring AnyMemberName(Case& input) {
        const auto& members = input.Pick(PublicClasses()).interfaces.front()->members;
        const Member& member = input.Pick(members);
        std::wstring name = member.name;
        if (!member.parameterNames.empty() && input.OneIn(3)) name = input.Pick(member.parameterNames);
        if (input.OneIn(4) && !name.empty()) name[input.Below(name.size())] ^= 0x20;
        return name;
    }

    void Name(IDispatch* object, Case& input) {
        std::array<std::wstring, 6> texts;
        std::array<LPOLESTR, 6> names{};
        std::array<DISPID, 6> numbers{};
        const UINT count = input.Below(texts.size() + 1);
        for (UINT index = 0; index < count; ++index) {
            texts[index] = input.OneIn(4) ? AnyText(input) : AnyMemberName(input);
            names[index] = input.OneIn(30) ? nullptr : texts[index].data();
            input.Trace([&] { return L"  name " + (names[index] ? texts[index] : L"null"); });
        }
        input.Trace([] { return std::wstring(L"GetIDsOfNames"); });
        const HRESULT result = object->GetIDsOfNames(
            input.OneIn(10) ? AnyId(input) : IID_NULL, input.OneIn(40) ? nullptr : names.data(), count,
            input.OneIn(4) ? input.Bits() : LOCALE_USER_DEFAULT, input.OneIn(40) ? nullptr : numbers.data());
        AfterCall(CallKind::kComInterface, result, L"GetIDsOfNames");
    }

    ComPtr<IUnknown> UseFactory(Case& input) {
        ComPtr<IUnknown> found;
        ComPtr<IClassFactory> factory;
        ComPtr<IUnknown> object;
        HRESULT result = DllGetClassObject(AnyId(input), input.OneIn(3) ? AnyId(input) : __uuidof(IClassFactory),
                                           reinterpret_cast<void**>(found.GetAddressOf()));
        AfterCall(CallKind::kComInterface, result, L"DllGetClassObject");
        if (FAILED(result) || FAILED(found.As(&factory))) return nullptr;
        Query(factory.Get(), input);
        const bool outer = input.OneIn(6);
        result =
            factory->CreateInstance(outer ? factory.Get() : nullptr, input.OneIn(2) ? AnyId(input) : __uuidof(IUnknown),
                                    input.OneIn(40) ? nullptr : reinterpret_cast<void**>(object.GetAddressOf()));
        AfterCall(CallKind::kComInterface, result, L"CreateInstance");
        factory->LockServer(TRUE);
        factory->LockServer(FALSE);
        return object;
    }

    void UseConnectionPoints(IUnknown* object, Case& input, World& world) {
        ComPtr<IConnectionPointContainer> container;
        ComPtr<IConnectionPoint> point;
        if (FAILED(object->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())))) return;
        ComPtr<IEnumConnectionPoints> points;
        AfterCall(CallKind::kComInterface, container->EnumConnectionPoints(points.GetAddressOf()),
                  L"EnumConnectionPoints");
        Walk<IConnectionPoint*>(points.Get(), input, [](IConnectionPoint*& item) { item->Release(); });
        AfterCall(
            CallKind::kComInterface,
            container->FindConnectionPoint(AnyId(input), input.OneIn(40) ? nullptr : point.ReleaseAndGetAddressOf()),
            L"FindConnectionPoint");
        points->Reset();
        if (!point && FAILED(points->Next(1, point.GetAddressOf(), nullptr))) return;
        Connect(point.Get(), input, world);
    }

    void Connect(IConnectionPoint* point, Case& input, World& world) {
        std::array<DWORD, 4> cookies{};
        for (uint32_t steps = input.Below(8); steps > 0; --steps) {
            DWORD& cookie = input.Pick(cookies);
            IID iid;
            ComPtr<IConnectionPointContainer> container;
            ComPtr<IEnumConnections> connections;
            switch (input.Below(5)) {
                case 0: {
                    // Not the container itself: it would hold itself.
                    ComPtr<IUnknown> sink =
                        input.OneIn(2) ? support::EventLog::ForSearches().Get() : AnyClient(input, world);
                    if (ClassOf(sink.Get())) sink = nullptr;
                    if (cookie) point->Unadvise(cookie);
                    cookie = 0;
                    AfterCall(CallKind::kComInterface, point->Advise(sink.Get(), input.OneIn(40) ? nullptr : &cookie),
                              L"Advise");
                    break;
                }
                case 1:
                    AfterCall(CallKind::kComInterface, point->Unadvise(input.OneIn(2) ? cookie : input.Bits()),
                              L"Unadvise");
                    break;
                case 2:
                    AfterCall(CallKind::kComInterface, point->EnumConnections(connections.GetAddressOf()),
                              L"EnumConnections");
                    Walk<CONNECTDATA>(connections.Get(), input, [](CONNECTDATA& item) { item.pUnk->Release(); });
                    break;
                case 3:
                    AfterCall(CallKind::kComInterface, point->GetConnectionPointContainer(container.GetAddressOf()),
                              L"GetConnectionPointContainer");
                    break;
                default:
                    AfterCall(CallKind::kComInterface, point->GetConnectionInterface(input.OneIn(40) ? nullptr : &iid),
                              L"GetConnectionInterface");
            }
        }
    }

    static ComPtr<IUnknown> AnyClient(Case& input, World& world) {
        return input.OneIn(3) ? nullptr : world.AnyObject();
    }

    // Next, Skip, Reset and Clone in any order.
    template <typename Item, typename Enumerator, typename Clear>
    void Walk(Enumerator* enumerator, Case& input, Clear&& clear) {
        ComPtr<Enumerator> walker(enumerator);
        for (uint32_t steps = input.Below(6); steps > 0; --steps) {
            std::array<Item, 5> items{};
            ULONG fetched = 0;
            ComPtr<Enumerator> clone;
            switch (input.Below(5)) {
                case 0:
                    walker->Skip(input.OneIn(3) ? input.Bits() : input.Below(4));
                    break;
                case 1:
                    walker->Reset();
                    break;
                case 2:
                    AfterCall(CallKind::kComInterface, walker->Clone(input.OneIn(40) ? nullptr : clone.GetAddressOf()),
                              L"Clone");
                    if (clone) walker = clone;
                    break;
                default: {
                    const ULONG wanted = input.Below(items.size() + 1);
                    const bool counted = wanted != 1 || input.OneIn(2);
                    const HRESULT result =
                        walker->Next(wanted, input.OneIn(40) ? nullptr : items.data(), counted ? &fetched : nullptr);
                    AfterCall(CallKind::kComInterface, result, L"Next");
                    if (!counted && result == S_OK) fetched = 1;
                    if (fetched > wanted) throw Finding{"Next: more than was wanted"};
                    std::for_each(items.begin(), items.begin() + fetched, clear);
                }
            }
        }
    }

    void UseEnumerator(IUnknown* object, Case& input) {
        ComPtr<ICollection> collection;
        ComPtr<IUnknown> enumerator;
        ComPtr<IEnumVARIANT> walker;
        if (FAILED(object->QueryInterface(IID_PPV_ARGS(collection.GetAddressOf())))) return;
        AfterCall(CallKind::kMember, collection->get__NewEnum(enumerator.GetAddressOf()), L"_NewEnum");
        platform::Check(enumerator.As(&walker));
        Query(walker.Get(), input);
        Walk<VARIANT>(walker.Get(), input, [](VARIANT& item) { VariantClear(&item); });
        if (input.OneIn(2)) collection->Add(_variant_t(L"added meanwhile"));
        if (input.OneIn(3)) collection->Remove(1);
        Walk<VARIANT>(walker.Get(), input, [](VARIANT& item) { VariantClear(&item); });
    }

    void AskForInformation(IUnknown* object, Case& input) {
        ComPtr<IProvideClassInfo2> provider;
        ComPtr<ISupportErrorInfo> support;
        ComPtr<IDispatch> dispatch;
        ComPtr<ITypeInfo> information;
        GUID id;
        UINT count = 0;
        if (FAILED(object->QueryInterface(IID_PPV_ARGS(provider.GetAddressOf())))) return;
        platform::Check(object->QueryInterface(IID_PPV_ARGS(support.GetAddressOf())));
        platform::Check(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())));
        support->InterfaceSupportsErrorInfo(AnyId(input));
        AfterCall(CallKind::kComInterface,
                  provider->GetGUID(input.OneIn(2) ? 1 : input.Bits(), input.OneIn(40) ? nullptr : &id), L"GetGUID");
        AfterCall(CallKind::kComInterface,
                  provider->GetClassInfo(input.OneIn(40) ? nullptr : information.ReleaseAndGetAddressOf()),
                  L"GetClassInfo");
        AfterCall(CallKind::kComInterface, dispatch->GetTypeInfoCount(input.OneIn(40) ? nullptr : &count),
                  L"GetTypeInfoCount");
        AfterCall(CallKind::kComInterface,
                  dispatch->GetTypeInfo(input.OneIn(2) ? 0 : input.Bits(), input.Bits(),
                                        input.OneIn(40) ? nullptr : information.ReleaseAndGetAddressOf()),
                  L"GetTypeInfo");
    }
};

}  // namespace

std::unique_ptr<Target> CreateAutomation() { return std::make_unique<AutomationTarget>(); }

}  // namespace fuzzing
