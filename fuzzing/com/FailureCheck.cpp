#include "com/FailureCheck.h"

#include "engine/Finding.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <oleauto.h>
#include <olectl.h>
#include <TVLejisCore.h>
#include <wrl/client.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <optional>

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

// The failures that need no description, each with the reason.
struct Excuse {
    CallKind kind;
    HRESULT result;
    const char* reason;
};

constexpr Excuse kExcuses[] = {
    {CallKind::kMember, E_POINTER,
     "no place for the result: only a mistake in a program in C++, seen when it first runs"},

    {CallKind::kInvoke, DISP_E_MEMBERNOTFOUND, "no such member, or not of this kind: IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_BADPARAMCOUNT, "IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_PARAMNOTFOUND, "a named argument that the member lacks: IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_PARAMNOTOPTIONAL, "IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_NONAMEDARGS, "IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_TYPEMISMATCH, "an argument that converts to no parameter: IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_OVERFLOW, "an argument out of its parameter's range: IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_BADVARTYPE, "an argument of no type: IDispatch's contract"},
    {CallKind::kInvoke, DISP_E_NOTACOLLECTION,
     "arguments for the value of a member that has none: the dispatcher's own"},
    {CallKind::kInvoke, E_INVALIDARG, "the call has no description, or an argument breaks the rules for variants"},

    {CallKind::kComInterface, E_POINTER, "no place for the result"},
    {CallKind::kComInterface, E_NOINTERFACE, "QueryInterface's contract, and that of CreateInstance"},
    {CallKind::kComInterface, E_INVALIDARG, "GetIDsOfNames, GetGUID: the documented answer"},
    {CallKind::kComInterface, DISP_E_UNKNOWNNAME, "GetIDsOfNames' contract"},
    {CallKind::kComInterface, DISP_E_BADINDEX, "GetTypeInfo's contract"},
    {CallKind::kComInterface, CLASS_E_NOAGGREGATION, "CreateInstance's contract"},
    {CallKind::kComInterface, CLASS_E_CLASSNOTAVAILABLE, "DllGetClassObject's contract"},
    {CallKind::kComInterface, CONNECT_E_NOCONNECTION, "Unadvise's and FindConnectionPoint's contract"},
    {CallKind::kComInterface, CONNECT_E_CANNOTCONNECT, "Advise's contract"},
};

bool IsExcused(CallKind kind, HRESULT result) {
    return std::any_of(std::begin(kExcuses), std::end(kExcuses),
                       [&](const Excuse& excuse) { return excuse.kind == kind && excuse.result == result; });
}

// A refusal (status 403) and a fault are told in the server's own words, and some servers have none.
bool MayBeWordless(HRESULT result) { return result == static_cast<HRESULT>(tvFatalError); }

constexpr wchar_t kStale[] = L"the description of another failure";

ComPtr<IErrorInfo> NewStaleError() {
    ComPtr<ICreateErrorInfo> creator;
    ComPtr<IErrorInfo> information;
    platform::Check(CreateErrorInfo(creator.GetAddressOf()));
    platform::Check(creator->SetDescription(platform::ToBstr(kStale)));
    platform::Check(creator.As(&information));
    return information;
}

std::optional<std::wstring> ThreadsDescription() {
    ComPtr<IErrorInfo> information;
    BSTR text = nullptr;
    if (GetErrorInfo(0, information.GetAddressOf()) != S_OK) return std::nullopt;
    information->GetDescription(&text);
    return platform::TakeText(text);
}

std::wstring TakeDescription(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrHelpFile);
    return platform::TakeText(exception.bstrDescription);
}

[[noreturn]] void Raise(const char* fault, HRESULT result, const std::wstring& call) {
    char number[16];
    std::snprintf(number, sizeof number, "%08lx", static_cast<unsigned long>(result));
    throw Finding{std::string(fault) + " " + number + " from " + std::string(call.begin(), call.end())};
}

}  // namespace

void BeforeCall() {
    static const ComPtr<IErrorInfo> stale = NewStaleError();
    SetErrorInfo(0, stale.Get());
}

void AfterCall(CallKind kind, HRESULT result, const std::wstring& call, EXCEPINFO* exception) {
    std::optional<std::wstring> description;
    HRESULT failure = result;
    if (exception && result == DISP_E_EXCEPTION) {
        description = TakeDescription(*exception);
        failure = exception->scode;
    } else if (FAILED(result)) {
        description = ThreadsDescription();
    }
    SetErrorInfo(0, nullptr);
    if (SUCCEEDED(result) || IsExcused(kind, result)) return;
    if (!description || (description->empty() && !MayBeWordless(failure))) {
        Raise("error without a description:", failure, call);
    }
    if (*description == kStale) Raise("error with the description of another one:", failure, call);
}

}  // namespace fuzzing
