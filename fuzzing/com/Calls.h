// Calls to members of the library's objects, by either road, with whatever arguments.
#pragma once

#include "com/Classes.h"
#include "com/Values.h"
#include "engine/Case.h"

#include <wrl/client.h>

#include <span>

namespace fuzzing {

// Pardons the leaks of a call whose arguments did not all convert: Wine's dispatcher does not free those that it had
// converted by then. A caller without an EXCEPINFO passes an empty one.
void PardonConversions(HRESULT outcome, const EXCEPINFO& exception, std::span<const VARIANT> arguments, Case& input);

// Calls the member with arguments of `values`, through its place in the interface's table or through Invoke, and checks
// how a failure shows. The object that it returns, or null.
Microsoft::WRL::ComPtr<IUnknown> CallDirectly(IUnknown* object, const PublicInterface& itsInterface,
                                              const Member& member, Case& input, Values& values);
Microsoft::WRL::ComPtr<IUnknown> CallByInvoke(IDispatch* object, const Member& member, Case& input, Values& values);

// Calls the member by either way, chosen at random.
Microsoft::WRL::ComPtr<IUnknown> CallAny(IUnknown* object, const PublicInterface& itsInterface, const Member& member,
                                         Case& input, Values& values);

}  // namespace fuzzing
