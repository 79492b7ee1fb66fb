// Each failure must be described, or be one of those that COM itself dictates.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>

namespace fuzzing {

// How the library was called, which decides who describes a failure and which ones need no description.
enum class CallKind {
    // A member of a public interface, called directly: the thread's error object describes the failure.
    kMember,
    // IDispatch::Invoke: EXCEPINFO describes the failure; what is wrong with the call itself is a bare number.
    kInvoke,
    // The interfaces that COM defines, whose results are part of their contracts.
    kComInterface,
};

// Leaves a description of something else on the thread: a failure must not pass for that.
void BeforeCall();

// Raises a Finding for a failure without a description of its own. `exception` belongs to kInvoke and is emptied.
void AfterCall(CallKind kind, HRESULT result, const std::wstring& call, EXCEPINFO* exception = nullptr);

}  // namespace fuzzing
