#pragma once

#include <oaidl.h>
#include <windows.h>

namespace platform {

// A call of a member by its number, as automation clients of all languages make it. The platform's dispatcher converts
// the arguments and calls the member; what it leaves to be wished for is done here.
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
