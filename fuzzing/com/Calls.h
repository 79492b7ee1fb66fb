// Calls to members of the library's objects, by either road, with whatever arguments.
#pragma once

#include "com/Classes.h"
#include "com/Values.h"
#include "engine/Case.h"

#include <wrl/client.h>

#include <span>

namespace fuzzing {

// Wine's dispatcher does not free what it has made of arguments when one of them does not convert. A call that passed
// no place for the exception passes an empty one here.
void PardonConversions(HRESULT outcome, const EXCEPINFO& exception, std::span<const VARIANT> arguments, Case& one);

// Calls the member with arguments of `values`, through its place in the interface's table or through Invoke, and checks
// how a failure shows. The object that it returns, or null.
Microsoft::WRL::ComPtr<IUnknown> CallDirectly(IUnknown* object, const PublicInterface& itsInterface,
                                              const Member& member, Case& one, Values& values);
Microsoft::WRL::ComPtr<IUnknown> CallByInvoke(IDispatch* object, const Member& member, Case& one, Values& values);

// By either, chosen at random.
Microsoft::WRL::ComPtr<IUnknown> CallAny(IUnknown* object, const PublicInterface& itsInterface, const Member& member,
                                         Case& one, Values& values);

}  // namespace fuzzing
