#include "platform/com/TypeInformation.h"

#include "platform/ComError.h"

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

bool IsDefaultEvents(ITypeInfo* classInformation, UINT index) {
    constexpr INT kDefaultEvents = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
    INT flags = 0;
    Check(classInformation->GetImplTypeFlags(index, &flags));
    return (flags & kDefaultEvents) == kDefaultEvents;
}

}  // namespace

TypeAttributes::TypeAttributes(ITypeInfo* information) : information_(information) {
    Check(information->GetTypeAttr(&attributes_));
}

ComPtr<ITypeInfo> DefaultEventsOf(ITypeInfo* classInformation) {
    ComPtr<ITypeInfo> events;
    const TypeAttributes type(classInformation);
    for (UINT index = 0; index < type->cImplTypes; ++index) {
        if (!IsDefaultEvents(classInformation, index)) continue;
        HREFTYPE reference = 0;
        Check(classInformation->GetRefTypeOfImplType(index, &reference));
        Check(classInformation->GetRefTypeInfo(reference, events.GetAddressOf()));
        break;
    }
    return events;
}

}  // namespace platform
