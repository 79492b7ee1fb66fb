// Calls of members as automation clients make them.
#pragma once

#include <comutil.h>
#include <oaidl.h>
#include <windows.h>

#include <vector>

namespace platform {

// The arguments of a call, with objects by value in place of references to them: not every dispatcher releases an
// object that it finds through a reference and refuses. The other arguments stay as they are.
class ArgumentsByValue {
public:
    // `given` outlives this object.
    explicit ArgumentsByValue(const DISPPARAMS& given);
    ArgumentsByValue(const ArgumentsByValue&) = delete;
    ArgumentsByValue& operator=(const ArgumentsByValue&) = delete;

    DISPPARAMS* All() { return &all_; }

private:
    DISPPARAMS all_;
    std::vector<VARIANT> arguments_;
    std::vector<_variant_t> objects_;
};

// A call of a member by its number, as automation clients of all languages make it. The platform's dispatcher converts
// the arguments and calls the member; this does what the dispatcher lacks.
struct MemberCall {
    ITypeInfo* information;
    // The interface that the information describes.
    void* object;
    CLSID classId;
    DISPID member;
    WORD flags;

    // Without parameters it is a call without arguments. The other three may be null, as clients leave them out.
    HRESULT Invoke(DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception, UINT* argument) const;
};

}  // namespace platform
