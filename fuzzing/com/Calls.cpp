#include "com/Calls.h"

#include "com/FailureCheck.h"
#include "engine/Finding.h"
#include "platform/ComError.h"

#include <oleauto.h>

#include <algorithm>
#include <array>

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

constexpr size_t kMostParameters = 8;

// The place for a result, and its end. As large as the largest.
class ResultPlace {
public:
    explicit ResultPlace(VARTYPE type) : type_(type) {}
    ~ResultPlace() { Clear(); }
    ResultPlace(const ResultPlace&) = delete;
    ResultPlace& operator=(const ResultPlace&) = delete;

    void* Address() { return type_ == VT_VARIANT ? static_cast<void*>(&place_) : &V_I8(&place_); }

    // Whether something was put there that its receiver has to free.
    bool IsOwned() const {
        // The platform's dispatcher may leave the type of a result that did not come.
        switch (type_ == VT_VARIANT ? V_VT(&place_) : type_) {
            case VT_BSTR:
            case VT_DISPATCH:
            case VT_UNKNOWN:
                return V_BYREF(&place_) != nullptr;
            default:
                return false;
        }
    }

    ComPtr<IUnknown> Object() const {
        const VARTYPE type = type_ == VT_VARIANT ? V_VT(&place_) : type_;
        return type == VT_DISPATCH || type == VT_UNKNOWN ? ComPtr<IUnknown>(V_UNKNOWN(&place_)) : nullptr;
    }

private:
    void Clear() {
        if (type_ != VT_VARIANT) V_VT(&place_) = type_;
        VariantClear(&place_);
    }

    const VARTYPE type_;
    VARIANT place_{};
};

// A pointer of the interface that the parameter demands; null for what has none such.
VARIANT DemandedObject(const Parameter& parameter, Values& values, ComPtr<IUnknown>& kept) {
    VARIANT value{};
    V_VT(&value) = VT_DISPATCH;
    IDispatch* const object = values.Object();
    if (!object) return value;
    if (parameter.object == GUID_NULL) {
        kept = object;
    } else if (FAILED(object->QueryInterface(parameter.object, reinterpret_cast<void**>(kept.GetAddressOf())))) {
        return value;
    }
    // The pointer is to the demanded interface. Its base interfaces are not known here, so it is stored as it is.
    V_BYREF(&value) = kept.Get();
    return value;
}

std::wstring CallText(const wchar_t* road, const std::wstring& name, const std::wstring& member) {
    return std::wstring(road) + L" " + name + L"." + member;
}

}  // namespace

void PardonConversions(HRESULT outcome, const EXCEPINFO& exception, std::span<const VARIANT> arguments, Case& input) {
    // The library raises the type mismatch for an object that the dispatcher has refused.
    const bool isRefused = outcome == DISP_E_EXCEPTION ? exception.scode == DISP_E_TYPEMISMATCH : FAILED(outcome);
    if (!isRefused) return;
    const bool isReference =
        std::ranges::any_of(arguments, [](const VARIANT& value) { return (V_VT(&value) & VT_BYREF) != 0; });
    if (isReference || arguments.size() > 1) input.PardonLeaks();
}

ComPtr<IUnknown> CallDirectly(IUnknown* object, const PublicInterface& itsInterface, const Member& member, Case& input,
                              Values& values) {
    ComPtr<IUnknown> table;
    if (FAILED(object->QueryInterface(itsInterface.id, reinterpret_cast<void**>(table.GetAddressOf())))) return nullptr;
    std::array<ComPtr<IUnknown>, kMostParameters> kept;
    std::array<VARIANT, kMostParameters> arguments{};
    std::array<VARIANT*, kMostParameters> pointers{};
    std::array<VARTYPE, kMostParameters> types{};
    const auto count = static_cast<UINT>(member.parameters.size());
    ResultPlace result(count > 0 && member.parameters.back().isResult ? member.parameters.back().type : VARTYPE{VT_I4});
    const bool nowhere = input.OneIn(40);
    for (UINT index = 0; index < count; ++index) {
        const Parameter& parameter = member.parameters[index];
        types[index] = parameter.isResult ? VARTYPE{VT_PTR} : parameter.type;
        if (parameter.isResult) {
            V_BYREF(&arguments[index]) = nowhere ? nullptr : result.Address();
        } else if (parameter.type == VT_DISPATCH) {
            arguments[index] = DemandedObject(parameter, values, kept[index]);
        } else {
            arguments[index] = values.OfType(parameter.type);
        }
        pointers[index] = &arguments[index];
        input.Trace([&] { return L"  argument " + Described(arguments[index]); });
    }
    const std::wstring call = CallText(L"directly", itsInterface.name, member.name);
    input.Trace([&] { return call; });
    VARIANT outcome{};
    BeforeCall();
    platform::Check(DispCallFunc(table.Get(), member.vtableOffset, CC_STDCALL, VT_ERROR, count, types.data(),
                                 pointers.data(), &outcome));
    AfterCall(CallKind::kMember, V_ERROR(&outcome), call);
    if (FAILED(V_ERROR(&outcome)) && result.IsOwned()) {
        throw Finding{"a failure that comes with a result, from " + std::string(call.begin(), call.end())};
    }
    return result.Object();
}

ComPtr<IUnknown> CallByInvoke(IDispatch* object, const Member& member, Case& input, Values& values) {
    std::array<VARIANT, kMostParameters> arguments{};
    UINT count = 0;
    for (size_t index = member.parameters.size(); index > 0; --index) {
        const Parameter& parameter = member.parameters[index - 1];
        if (parameter.isResult) continue;
        // Every second argument has the demanded type.
        arguments[count] = input.OneIn(2) ? values.OfType(parameter.type) : values.AnyToDispatch();
        input.Trace([&] { return L"  argument " + Described(arguments[count]); });
        ++count;
    }
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut = (member.kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters{arguments.data(), isPut ? &put : nullptr, count, isPut ? 1U : 0U};
    const std::wstring call = CallText(L"by Invoke", L"", member.name);
    input.Trace([&] { return call; });
    ResultPlace result(VT_VARIANT);
    EXCEPINFO exception{};
    UINT wrong = 0;
    BeforeCall();
    const HRESULT outcome = object->Invoke(member.id, IID_NULL, LOCALE_USER_DEFAULT, member.kind, &parameters,
                                           static_cast<VARIANT*>(result.Address()), &exception, &wrong);
    PardonConversions(outcome, exception, {arguments.data(), count}, input);
    AfterCall(CallKind::kInvoke, outcome, call, &exception);
    return result.Object();
}

ComPtr<IUnknown> CallAny(IUnknown* object, const PublicInterface& itsInterface, const Member& member, Case& input,
                         Values& values) {
    ComPtr<IDispatch> dispatch;
    if (input.OneIn(2) && SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(dispatch.GetAddressOf())))) {
        return CallByInvoke(dispatch.Get(), member, input, values);
    }
    return CallDirectly(object, itsInterface, member, input, values);
}

}  // namespace fuzzing
