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

TYPEATTR AttributesOf(ITypeInfo* information) {
    TYPEATTR* attributes = nullptr;
    Check(information->GetTypeAttr(&attributes));
    const TYPEATTR copy = *attributes;
    information->ReleaseTypeAttr(attributes);
    return copy;
}

ComPtr<ITypeInfo> DefaultEventsOf(ITypeInfo* classInformation) {
    ComPtr<ITypeInfo> events;
    for (UINT index = 0; index < AttributesOf(classInformation).cImplTypes; ++index) {
        if (!IsDefaultEvents(classInformation, index)) continue;
        HREFTYPE reference = 0;
        Check(classInformation->GetRefTypeOfImplType(index, &reference));
        Check(classInformation->GetRefTypeInfo(reference, events.GetAddressOf()));
        break;
    }
    return events;
}

}  // namespace platform
