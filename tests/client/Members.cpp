#include "client/Members.h"

#include "support/Printing.h"

#include <oleauto.h>

namespace client {
namespace {

ComPtr<ITypeInfo> TypeOf(REFGUID guid) {
    ComPtr<ITypeInfo> type;
    EXPECT_OK(RegisteredTypeLibrary()->GetTypeInfoOfGuid(guid, type.GetAddressOf()));
    return type;
}

template <typename Work>
auto WithAttributes(ITypeInfo* type, Work&& work) {
    TYPEATTR* attributes = nullptr;
    EXPECT_OK(type->GetTypeAttr(&attributes));
    auto result = work(*attributes);
    type->ReleaseTypeAttr(attributes);
    return result;
}

GUID ReferencedGuid(ITypeInfo* type, HREFTYPE reference) {
    ComPtr<ITypeInfo> referenced;
    EXPECT_OK(type->GetRefTypeInfo(reference, referenced.GetAddressOf()));
    return WithAttributes(referenced.Get(), [](const TYPEATTR& attributes) { return attributes.guid; });
}

Member::Parameter DescribeParameter(ITypeInfo* type, const ELEMDESC& element) {
    Member::Parameter parameter{element.tdesc.vt, (element.paramdesc.wParamFlags & PARAMFLAG_FOUT) != 0, false};
    // An object is a pointer to its interface, or one of automation's own two kinds.
    if (parameter.type == VT_PTR && element.tdesc.lptdesc->vt == VT_USERDEFINED && !parameter.isResult) {
        const GUID guid = ReferencedGuid(type, element.tdesc.lptdesc->hreftype);
        parameter.type = VT_DISPATCH;
        parameter.isClientInterface = guid == __uuidof(IRunnable) || guid == __uuidof(IFutureObserver);
    }
    return parameter;
}

Member DescribeMember(ITypeInfo* type, const FUNCDESC& function) {
    BSTR name = nullptr;
    EXPECT_OK(type->GetDocumentation(function.memid, &name, nullptr, nullptr, nullptr));
    Member member{support::Take(name), function.memid, function.invkind, static_cast<ULONG_PTR>(function.oVft), {}};
    for (SHORT index = 0; index < function.cParams; ++index) {
        member.parameters.push_back(DescribeParameter(type, function.lprgelemdescParam[index]));
    }
    return member;
}

ComPtr<ITypeInfo> TableSide(ITypeInfo* type) {
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> side;
    EXPECT_OK(type->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    EXPECT_OK(type->GetRefTypeInfo(reference, side.GetAddressOf()));
    return side;
}

}  // namespace

std::vector<Member> MembersOf(REFIID iid) {
    const ComPtr<ITypeInfo> side = TableSide(TypeOf(iid).Get());
    const UINT count = WithAttributes(side.Get(), [](const TYPEATTR& attributes) { return attributes.cFuncs; });
    std::vector<Member> members;
    for (UINT index = 0; index < count; ++index) {
        FUNCDESC* function = nullptr;
        EXPECT_OK(side->GetFuncDesc(index, &function));
        members.push_back(DescribeMember(side.Get(), *function));
        side->ReleaseFuncDesc(function);
    }
    return members;
}

std::vector<IID> InterfacesOf(REFCLSID classId) {
    const ComPtr<ITypeInfo> type = TypeOf(classId);
    const UINT count = WithAttributes(type.Get(), [](const TYPEATTR& attributes) { return attributes.cImplTypes; });
    std::vector<IID> interfaces;
    for (UINT index = 0; index < count; ++index) {
        INT flags = 0;
        HREFTYPE reference = 0;
        EXPECT_OK(type->GetImplTypeFlags(index, &flags));
        EXPECT_OK(type->GetRefTypeOfImplType(index, &reference));
        if (!(flags & IMPLTYPEFLAG_FSOURCE)) interfaces.push_back(ReferencedGuid(type.Get(), reference));
    }
    return interfaces;
}

HRESULT CallDirectly(IUnknown* interfacePointer, const Member& member, std::vector<VARIANT> arguments) {
    std::vector<VARTYPE> types;
    std::vector<VARIANTARG*> pointers;
    for (size_t index = 0; index < arguments.size(); ++index) {
        // A variant by value is passed whole, anything else as what it holds.
        types.push_back(member.parameters[index].type == VT_VARIANT ? static_cast<VARTYPE>(VT_VARIANT)
                                                                    : V_VT(&arguments[index]));
        pointers.push_back(&arguments[index]);
    }
    _variant_t result;
    EXPECT_OK(DispCallFunc(interfacePointer, member.offset, CC_STDCALL, VT_ERROR, static_cast<UINT>(arguments.size()),
                           types.data(), pointers.data(), &result));
    return V_ERROR(&result);
}

void ForEachMember(const std::function<void(const ClassRow&, IUnknown*, const Member&)>& visit) {
    for (const ClassRow& row : CreatableClasses()) {
        for (const IID& iid : InterfacesOf(row.id)) {
            for (const Member& member : MembersOf(iid)) {
                SCOPED_TRACE(support::Utf8(row.name) + "." + support::Utf8(member.name));
                ComPtr<IUnknown> object;
                ASSERT_OK(CreateByName(row.name)->QueryInterface(iid, reinterpret_cast<void**>(object.GetAddressOf())));
                visit(row, object.Get(), member);
            }
        }
    }
}

}  // namespace client
